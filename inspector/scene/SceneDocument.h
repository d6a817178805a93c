// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"
#include "SceneChanges.h"

#include <QObject>
#include <QString>

#include <vector>

/// The open scene: its roots, its file, and whether it was modified. It follows the host's
/// selection to know which nodes may be edited.
class SceneDocument : public QObject {
    Q_OBJECT
public:
    explicit SceneDocument(QObject* parent = nullptr);
    ~SceneDocument() override;

    /// The first of the roots that the host shows; null before the first scene is opened, and for
    /// a scene from which a person has deleted all.
    KnNodePtr root() const;
    /// Empty for a scene that was never saved.
    const QString& fileName() const { return m_fileName; }

    /// Counts what was written a moment ago, even if it hasn't been announced yet.
    bool isModified();

    /// Replaces the scene by that of a file. A refused file leaves everything as it is, and
    /// `error` says why.
    bool open(const QString& fileName, QString* error);
    /// Replaces the scene by the small one that the program starts with; it has no file.
    void openStarter();
    /// Writes the scene, which has this file from then on. A failure leaves file and scene as they
    /// are.
    bool save(const QString& fileName, QString* error);

Q_SIGNALS:
    void fileNameChanged();
    void modifiedChanged(bool modified);

private:
    void release();
    void replace(std::vector<KnNodePtr> roots, const QString& fileName);

    QString m_fileName;
    SceneChanges m_changes;
};
