// SPDX-License-Identifier: BSD-3-Clause
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <QVBoxLayout>

#include <cstdio>
#include <cstdlib>

// A program under inspection, which looks at what is shown of it and prints it. Its first argument
// says what it does.

namespace {

QTreeView* tree(const char* name)
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* const widget : widgets) {
        if (widget->objectName() == QLatin1String(name))
            return qobject_cast<QTreeView*>(widget);
    }
    return nullptr;
}

/// Of the top of the tree, or below one row of it.
QStringList rows(const QTreeView* view, int top = -1)
{
    QStringList texts;
    if (!view)
        return texts;
    const QModelIndex parent = view->model()->index(top, 0);
    for (int row = 0; row < view->model()->rowCount(parent); ++row)
        texts += view->model()->index(row, 0, parent).data().toString();
    return texts;
}

void print(const QString& line) { std::puts(qPrintable(line)); }

int runWidgets(int argc, char** argv)
{
    QApplication application(argc, argv);
    application.setObjectName("guest");
    QWidget window;
    window.setObjectName("window");
    QVBoxLayout layout(&window);
    QPushButton button("Go", &window);
    button.setObjectName("button");
    layout.addWidget(&button);
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, &window, [&clicks] { ++clicks; });
    window.show();
    if (!QTest::qWaitFor([] { return rows(tree("sceneTree")).contains("window"); }, 20000))
        return 99;
    print("roots " + rows(tree("sceneTree")).join(' '));
    print(QString("%1 gestures").arg(rows(tree("sceneTree"), 0).count("QGestureManager")));
    QTest::mouseClick(&button, Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier);
    const auto selected = [] { return tree("sceneTree")->currentIndex().data().toString(); };
    const bool isSelected = QTest::qWaitFor([&] { return selected() == "button"; }, 20000);
    print(QString("selected %1, %2 clicks").arg(isSelected).arg(clicks));
    QTest::mouseClick(&button, Qt::LeftButton);
    print(QString("%1 clicks").arg(clicks));
    const auto isShown = [] { return rows(tree("sceneTree")).contains("second"); };
    {
        QWidget second;
        second.setObjectName("second");
        second.show();
        print(QString("second %1").arg(QTest::qWaitFor(isShown, 20000)));
    }
    print(QString("gone %1").arg(QTest::qWaitFor([&] { return !isShown(); }, 20000)));
    print("preload " + qEnvironmentVariable("LD_PRELOAD"));
    return 7;
}

} // namespace

int main(int argc, char** argv)
{
    const QByteArray what(argc > 1 ? argv[1] : "");
    if (what == "widgets")
        return runWidgets(argc, argv);
    if (what == "core") {
        const QCoreApplication application(argc, argv);
        QCoreApplication::processEvents();
        return 3;
    }
    if (what == "abort")
        std::abort();
    return 4;
}
