// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QHash>
#include <QPointer>
#include <QStatusBar>

class ElidedLabel;

/// The status bar: what can be done next where the focus is, as long as nothing else has a tip to
/// show.
class StatusLine : public QStatusBar {
    Q_OBJECT
public:
    explicit StatusLine(QWidget* parent);

    /// Shown while the focus is in this pane, or in another one inside of it that has no hint of
    /// its own.
    void setHint(QWidget* pane, const QString& hint);

private:
    void showHint();
    void showHintOf(const QWidget* focus);

    QHash<const QObject*, QString> m_hints; // by pane; not owned
    ElidedLabel* m_label; // child
};
