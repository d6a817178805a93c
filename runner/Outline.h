// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <vector>

/// Draws a line around a widget of the program, in the program's own window, as long as the widget
/// can be seen. The line follows whatever moves, hides or destroys the widget. It is a widget on
/// top of the window that takes no input and no focus, and that neither layouts nor the tree of
/// objects have.
class Outline : public QObject {
    Q_OBJECT
public:
    Outline();
    ~Outline() override;

    /// What is outlined from now on; null, or what isn't a widget, for nothing.
    void surround(QObject* object);
    /// Whether an event only says that the line has come to a window of the program's or left it,
    /// which the program needn't know.
    bool concerns(const QEvent* event) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Line;

    void follow();
    void updateSoon();
    void update();
    void makeLine(QWidget* window);
    void removeLine();

    QPointer<QWidget> m_widget;
    std::vector<QPointer<QWidget>> m_followed; // the widget and all that it stands in
    QPointer<Line> m_line; // belongs to the window
    const QObject* m_own = nullptr; // the line, also while it is being destroyed
    bool m_updateWaits = false;
};
