// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvCommand.h"
#include "CrvEditor.h"
#include "CrvPlugin.h"

#include <QCoreApplication>
#include <QVariant>

#include <functional>
#include <memory>
#include <string>

/// Notes a call. The list is kept by the application object, so that modules write to it too; the
/// text is copied, since a module and its literals go away.
inline void note(const std::string& call)
{
    const QString calls = QCoreApplication::instance()->property("calls").toString();
    QCoreApplication::instance()->setProperty(
        "calls", calls + QLatin1String(", ") + QString::fromStdString(call));
}

/// What has been noted since this was last called, as "a, b, c".
inline QString takeCalls()
{
    const QString calls = QCoreApplication::instance()->property("calls").toString();
    QCoreApplication::instance()->setProperty("calls", QVariant());
    return calls.mid(2);
}

class KnField;
inline void noteField(const KnField* field) { note(field ? "field" : "no field"); }

/// Notes what the host does with it.
struct NotingCommand : CrvCommand {
    ~NotingCommand() override { note("destroy"); }
    void execute() override { note("execute"); }
    void undo() override { note("undo"); }
    void redo() override { note("redo"); }
};

/// An extension or editor that notes the host's calls as "Name call".
template <class Base>
class Recording : public Base {
public:
    explicit Recording(const char* name) { this->m_name = KbString(name); }

    std::function<void()> inActivate = [] {};

    void load() override { note(this->m_name.toUtf8() + " load"); }
    void unload() override { note(this->m_name.toUtf8() + " unload"); }
    void activate() override
    {
        note(this->m_name.toUtf8() + " on");
        inActivate();
    }
    void deactivate() override { note(this->m_name.toUtf8() + " off"); }
};

/// Owns its extensions, which are registered in the order in which they were added.
class RecordingPlugin : public CrvPlugin {
public:
    ~RecordingPlugin() override { note("destroyed"); }

    /// The last one added.
    template <class Base = CrvExtension>
    Recording<Base>* add(std::initializer_list<const char*> names)
    {
        Recording<Base>* added = nullptr;
        for (const char* const name : names) {
            m_owned.emplace_back(added = new Recording<Base>(name));
            addExtension(added);
        }
        return added;
    }

    void unload() override
    {
        note("unload");
        CrvPlugin::unload();
    }

private:
    std::vector<std::unique_ptr<CrvExtension>> m_owned;
};
