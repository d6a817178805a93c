// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvPlugin.h"

#include <QObject>
#include <QString>

#include <list>
#include <memory>

class CrvExtension;
class CrvProfile;
class CrvProfileSetting;

/// Loads plug-in files, holds the profiles and applies the active one: the extensions that its tree
/// names at the top are active, what stands below them is placed under them. There is one
/// object, made at first use and destroyed with the application object. An extension may change
/// plug-ins and profiles while it is activated or deactivated, except that it can't unload.
class CrvPluginsManager : public QObject {
    Q_OBJECT
public:
    static CrvPluginsManager* getInstance();

    /// Loads a plug-in file, calls `load` on the plug-in and then on each of its extensions, and
    /// applies the active profile. A file that is missing, isn't a library, lacks one of the two
    /// functions, makes no plug-in or is loaded already is refused: the result is null, and `error`
    /// says which it was.
    CrvPlugin* loadPlugin(const QString& fileName, QString* error = nullptr);
    /// The same for a plug-in that is part of the program; it has no file. It must stay alive until
    /// unloadAll.
    void adoptPlugin(CrvPlugin* plugin);
    /// Deactivates and unloads all extensions and plug-ins, in the reverse order. Afterwards
    /// nothing is selected and the undo stack is empty. To be called while the shell exists; the
    /// instance serves a further loadPlugin.
    void unloadAll();
    /// All extensions of all plug-ins, in the order of their registration.
    std::vector<CrvExtension*> getExtensions() const;

    /// Replaces all profiles by those of a JSON file. A bad file is refused with a message and
    /// leaves the profiles as they are. The new profile with the active one's name becomes active,
    /// or else the first. All extensions are activated anew, which is when the profile selector
    /// reads the list.
    bool loadProfiles(const QString& fileName, QString* error = nullptr);
    /// Replaces all profiles by the built-in ones: "Everything", "Fields", "Console".
    void useBuiltInProfiles();

    const std::list<CrvProfile*>& getProfilesList() const;
    /// Null if there is none.
    CrvProfile* getActiveProfile() const;
    /// Deactivates what the new profile lacks, activates what the old one lacked, leaves the rest
    /// alone, and announces the selection again. Null deactivates everything; a profile that isn't
    /// in the list is ignored.
    void setActiveProfile(CrvProfile* profile);

    /// What the active profile says of an extension; never null. Owned by this object, until the
    /// profile or the plug-ins change.
    CrvProfileSetting* getProfileSetting(const CrvExtension* extension) const;

Q_SIGNALS:
    void profilesChanged();
    void activeProfileChanged(CrvProfile* profile);

private:
    CrvPluginsManager();
    ~CrvPluginsManager() override;

    struct Private;
    std::unique_ptr<Private> d;
};
