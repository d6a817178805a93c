// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"

#include <QObject>

class CrvProfileSetting;

/// One thing that a plug-in adds to the tool: a dock, a tool bar, an editor. The host calls `load`
/// once, then `activate`, `show`, `hide` and `deactivate` as the profile says, and `unload` once,
/// all on the user interface thread. An override of `activate`, `deactivate`, `hide` or `show`
/// calls the base's.
class CrvExtension : public QObject {
    Q_OBJECT
public:
    CrvExtension();
    ~CrvExtension() override;

    virtual void activate();
    virtual void deactivate();
    virtual void hide();
    virtual void load();
    virtual void show();
    virtual void unload();

    /// What the active profile says of this extension. Never null: an extension that the profile
    /// doesn't list gets a setting that controls nothing.
    CrvProfileSetting* getProfileSetting() const;

    const KbString& getName() const { return m_name; }
    const KbString& getDescription() const { return m_description; }
    const KbString& getAuthor() const { return m_author; }
    const KbString& getVersion() const { return m_version; }

    bool isActive() const { return m_active; }
    /// Whether `show` was called last, and not `hide`.
    bool isShown() const { return m_shown; }

protected:
    KbString m_name;
    KbString m_description;
    KbString m_author;
    KbString m_version;

private:
    bool m_active = false;
    bool m_shown = false;
};
