// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTableWidget>

/// Writes down what a panel is built of, in one line of text: layouts and widgets from left to
/// right, and of each its class without the Q, its name and whatever differs from a fresh widget
/// of its Qt class. Minimum widths are left out, they follow the font.
class LayoutDump {
public:
    /// The panel, its tab stops if they don't go from left to right, and its popups.
    QString panel(const QWidget* panel);
    QString widget(const QWidget* widget);

private:
    QString layout(const QLayout* layout);
    QString item(const QLayout* layout, int index);
    QString window(const QWidget* window);

    const QFrame m_frame;
    const QLabel m_label;
    const QPushButton m_button;
    const QLineEdit m_line;
    const QCheckBox m_check;
    const QComboBox m_combo;
    const QSpinBox m_spin;
    const QSlider m_slider { Qt::Horizontal };
    const QTableWidget m_table;
    QList<const QWidget*> m_met; // from left to right
};
