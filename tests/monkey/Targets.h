// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

#include <vector>

class StepRandom;

/// A place on the screen that a person may point at.
struct Target {
    QWidget* widget = nullptr; ///< visible and enabled; null if there is no such place
    QPoint place; ///< in the widget
    QString name; ///< of widget and place, for a person who reads what was done
};

/// What the hand can reach now: the popup that is open, or the dialog that waits for an answer, or
/// else all windows.
class Targets {
public:
    /// Those in this widget alone; null for all that can be reached.
    explicit Targets(const QWidget* within = nullptr);

    const std::vector<QWidget*>& widgets() const { return m_widgets; }
    /// Any place; an editor more likely than what stands around it.
    Target any(StepRandom& random) const;
    /// One in a widget of a class; null if there is none.
    template <class Widget>
    Target any(StepRandom& random) const
    {
        std::vector<QWidget*> found;
        for (QWidget* widget : m_widgets) {
            if (qobject_cast<Widget*>(widget))
                found.push_back(widget);
        }
        return pick(found, random);
    }

    /// The names of the widget and of all that it stands in.
    static QString path(const QWidget* widget);
    /// A place in a widget that can be seen: a row of a list, an entry of a menu, a tab.
    static Target in(QWidget* widget, StepRandom& random);

private:
    static Target pick(const std::vector<QWidget*>& widgets, StepRandom& random);

    std::vector<QWidget*> m_widgets;
};
