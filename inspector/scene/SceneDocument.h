// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"
#include "SceneChanges.h"

#include <QObject>
#include <QString>

/// The open scene: its root, its file, and whether it was modified. It follows the host's selection
/// to know which nodes may be edited.
class SceneDocument : public QObject {
    Q_OBJECT
public:
    explicit SceneDocument(QObject* parent = nullptr);
    ~SceneDocument() override;

    /// Null before the first scene is opened.
    const KnNodePtr& root() const { return m_root; }
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
    void replace(KnNodePtr root, const QString& fileName);

    KnNodePtr m_root;
    QString m_fileName;
    SceneChanges m_changes;
};
