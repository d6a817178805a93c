// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QObject>

class Stage;

/// Says whether undoing everything brings back the scene as it was when the undo stack was empty,
/// bit for bit, and redoing everything each state behind it; and whether what would be saved reads
/// back as the same scene. To be used where nobody but a person changes the scene.
class UndoOracle : public QObject {
    Q_OBJECT
public:
    UndoOracle() = default;

    /// For a new window, or one whose undo stack was emptied.
    void begin(Stage& stage);
    /// Undoes and redoes everything; the stack ends where it stood. Empty if all agrees.
    QString check(Stage& stage);

private:
    static QByteArray sceneText();
    void sceneReplaced();
    static QString checkSaving();

    QByteArray m_first;
    QMetaObject::Connection m_replaced; // to the document of a program
};
