// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnGroup.h"
#include "ObjectClass.h"
#include "ObjectWatch.h"

#include <QPointer>

#include <memory>
#include <vector>

class QObject;

/// An object as a node: its properties are the fields, its children the children, all made when
/// somebody first looks at them. The object isn't owned and may die; what is left of it then has
/// neither children nor anything that could be written.
///
/// An object of another thread has its class, its name and one field, which says where it lives.
/// Nothing else of it is read.
class ObjectNode final : public KnGroup, public ObjectFollower {
public:
    /// The node of a living object, as long as anybody holds a reference on it; otherwise a fresh
    /// one with a count of 0.
    static ObjectNode* of(QObject* object);

    KnType getObjectType() const override { return m_class->type; }
    const KnFieldData* getContainerFieldData() const override;
    bool hasFixedChildren() const override { return true; }

    /// Null once it is dead.
    QObject* object() const { return m_object.data(); }
    /// Brings children, name, dynamic properties and the kinds of fields in line with the object.
    void followObject() override;
    QObject* followedObject() const override { return object(); }

protected:
    KnField* ownField(int index) override;
    int ownIndex(const KnField* field) const override;
    void makeChildren() override;
    /// Names the object, too.
    void renamed() override;

private:
    explicit ObjectNode(QObject* object);
    ~ObjectNode() override;

    bool isForeign() const;
    std::unique_ptr<KnField> makeField(int index) const;
    void watchEvents();
    void followChildren();
    void followDynamicProperties();
    void exchangeOutgrownFields();

    QObject* const m_address; // of the object, also when it is dead
    QPointer<QObject> m_object;
    const KbName m_firstName; // of the object, when the node was made
    std::shared_ptr<const ObjectClass> m_class;
    bool m_watchesEvents = false; // of the object, since somebody has looked beyond its name
    // The fields of the class and those for the object's dynamic properties; null without any.
    std::unique_ptr<KnFieldData> m_ownTable;
    std::vector<std::unique_ptr<KnField>> m_fields; // null where nobody has looked
    /// A field that others have taken the place of, since its property holds something else. A step
    /// of the undo stack may name it.
    struct FormerField {
        int index;
        std::unique_ptr<KnField> field;
    };
    std::vector<FormerField> m_formerFields;
};
