// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QLabel>
#include <QStringList>

/// One line with the names from the root down to a node, each a link. If there is no room, names
/// behind the first give way.
class NodePath : public QLabel {
    Q_OBJECT
public:
    explicit NodePath(QWidget* parent);

    /// From the root to the node; empty for none.
    void setNames(const QStringList& names);

    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Counted from the root, which is 0.
    void chosen(int depth);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showNames();

    QStringList m_names;
};
