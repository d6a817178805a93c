// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <QVBoxLayout>
#include <QWindow>

#include <cstdio>

// What a program under inspection sees of the inspector, and does to it.

inline QTreeView* tree(const char* name)
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* const widget : widgets) {
        if (widget->objectName() == QLatin1String(name))
            return qobject_cast<QTreeView*>(widget);
    }
    return nullptr;
}

/// Of the top of the tree, or below one row of it.
inline QStringList rows(const QTreeView* view, int top = -1)
{
    QStringList texts;
    if (!view)
        return texts;
    const QModelIndex parent = view->model()->index(top, 0);
    for (int row = 0; row < view->model()->rowCount(parent); ++row)
        texts += view->model()->index(row, 0, parent).data().toString();
    return texts;
}

inline void print(const QString& line) { std::puts(qPrintable(line)); }

inline bool comes(const char* name)
{
    return QTest::qWaitFor([name] { return rows(tree("sceneTree")).contains(name); }, 20000);
}

/// As the window system would, so that what is blocked gets nothing.
inline void click(QWidget* widget, const QPoint& position)
{
    QWindow* const window = widget->window()->windowHandle();
    QTest::mouseClick(window, Qt::LeftButton, {}, widget->mapTo(widget->window(), position));
}

/// Clicks a row at the top of the tree, and says whether that has selected it.
inline bool clickRow(const char* name)
{
    QTreeView* const view = tree("sceneTree");
    const qsizetype row = rows(view).indexOf(name);
    click(view->viewport(),
        view->visualRect(view->model()->index(static_cast<int>(row), 0)).center());
    return view->currentIndex().data().toString() == name;
}

struct Window : QWidget {
    explicit Window(const char* name)
    {
        setObjectName(name);
        button.setObjectName("button");
        layout.addWidget(&button);
        connect(&button, &QPushButton::clicked, this, [this] { ++clicks; });
    }

    int clicks = 0;
    QVBoxLayout layout { this };
    QPushButton button { "Go", this };
};
