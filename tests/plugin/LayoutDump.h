// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QLayout>

#include <memory>
#include <vector>

/// Writes down what a panel is built of, in one line of text: layouts and widgets from left to
/// right, and of each its class without the Q, its name and whatever differs from a fresh widget
/// of its Qt class. Minimum widths are left out, they follow the font.
class LayoutDump {
public:
    LayoutDump();

    /// The panel, its tab stops if they don't go from left to right, and its popups.
    QString panel(const QWidget* panel);
    QString widget(const QWidget* widget);

private:
    QString layout(const QLayout* layout);
    QString item(const QLayout* layout, int index);
    QString window(const QWidget* window);

    std::vector<std::unique_ptr<QWidget>> m_fresh; // one of each class, at last that of the others
    QList<const QWidget*> m_met; // from left to right
};
