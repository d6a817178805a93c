// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnFieldRecorder.h"
#include "KnTypedObject.h"

#include <vector>

class KnFieldContainer;
class KnFieldOwner;
class KnFieldSensor;

/// One value, or one array of values, of a node. A field belongs to its container, which has it as
/// a plain member; it may also stand alone. Destroying a field detaches its sensors.
class KnField : public KnTypedObject {
public:
    ~KnField() override;

    static KnType getClassTypeId();

    /// The whole value as text. What `get` gives, `set` accepts, also on another field of the type.
    virtual void get(KbString& text) const = 0;
    /// Takes the whole value as text. A refused text changes nothing, posts a KnReadError that
    /// names field, position and what was expected, and gives false.
    virtual bool set(const KbString& text) = 0;
    bool set(const char* text) { return set(KbString(text)); }

    /// An ignored field keeps its value, but the scene makes no use of it.
    int isIgnored() const { return m_ignored ? 1 : 0; }
    void setIgnored(int ignored);

    /// A read-only field shows what the program keeps in it: it refuses each text that `set` and
    /// its companions are given, with a KnReadError. The program itself writes typed values as
    /// always.
    bool isReadOnly() const { return m_readOnly; }
    void setReadOnly(bool readOnly);

    /// Whether the field knows its default by itself. That of any other field is what a fresh node
    /// of its type holds.
    virtual bool hasOwnDefault() const { return false; }
    /// Takes its own default. False if it has none, or, after a KnReadError, if it can't.
    virtual bool resetToDefault() { return false; }

    /// Null for a field that stands alone.
    KnFieldContainer* getContainer() const;
    /// The container as its fields know it; null for a field that stands alone.
    const KnFieldOwner* getOwner() const { return m_owner; }

    /// Tells the sensors that something changed; they run later, from the kernel's queue.
    void touch();

protected:
    KnField();

    /// The value was written or touched. Called at once, before any sensor hears of it; the field
    /// may write itself here, which comes back here.
    virtual void written() { }
    /// The first sensor is about to be attached. What is written here isn't news to it.
    virtual void watchBegins() { }
    /// The last sensor was detached. Not called any more while the field is being destroyed.
    virtual void watchEnds() { }

    /// Before each write: lets whoever records read what the field holds.
    void aboutToWrite()
    {
        if (KnFieldRecorder* const recorder = KnFieldRecorder::current())
            recorder->aboutToWrite(*this);
    }

private:
    friend class KnFieldOwner;
    friend class KnFieldSensor;
    friend class KnMField;

    void callSensors();

    KnFieldOwner* m_owner = nullptr; // not owned; it has this field as a member
    std::vector<KnFieldSensor*> m_sensors; // not owned
    bool m_ignored = false;
    bool m_readOnly = false;
};
