// SPDX-License-Identifier: BSD-3-Clause
#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>
#include <QWindow>

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

bool comes(const char* name)
{
    return QTest::qWaitFor([name] { return rows(tree("sceneTree")).contains(name); }, 20000);
}

/// As the window system would, so that what is blocked gets nothing.
void click(QWidget* widget, const QPoint& position)
{
    QWindow* const window = widget->window()->windowHandle();
    QTest::mouseClick(window, Qt::LeftButton, {}, widget->mapTo(widget->window(), position));
}

/// Clicks a row at the top of the tree, and says whether that has selected it.
bool clickRow(const char* name)
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

int runModal(int argc, char** argv)
{
    QApplication application(argc, argv);
    application.setObjectName("guest");
    Window window("window");
    Window first("first");
    Window second("second");
    window.show();
    first.setWindowModality(Qt::ApplicationModal);
    first.show();
    if (!comes("first"))
        return 99;
    print(QString("below one %1").arg(clickRow("window")));
    second.setWindowModality(Qt::ApplicationModal);
    second.show();
    if (!comes("second"))
        return 99;
    print(QString("below two %1").arg(clickRow("first")));
    second.close();
    click(&first.button, first.button.rect().center());
    click(&window.button, window.button.rect().center());
    print(QString("back %1, %2 %3").arg(clickRow("window")).arg(first.clicks).arg(window.clicks));
    first.close();
    {
        QDialog own(tree("sceneTree")->window());
        own.setModal(true);
        own.show();
        click(&window.button, window.button.rect().center());
        print(QString("own %1, %2").arg(clickRow("guest")).arg(window.clicks));
    }
    print(QString("free %1").arg(clickRow("guest")));
    return 0;
}

/// Shows a window until it is ended from outside, or for a while.
int runQuiet(int argc, char** argv)
{
    QApplication application(argc, argv);
    application.setObjectName("guest");
    Window window("window");
    window.show();
    print("noise");
    QTimer::singleShot(10000, &application, &QCoreApplication::quit);
    return QApplication::exec();
}

int runClosing(int argc, char** argv)
{
    QApplication application(argc, argv);
    Window window("window");
    window.show();
    if (!comes("window"))
        return 99;
    const bool inspectorFirst = argc > 2;
    QWidget* const inspector = tree("sceneTree")->window();
    QTimer::singleShot(0, &window, [&] {
        if (inspectorFirst)
            inspector->close();
        print(QString("%1 windows").arg(inspector->isVisible() + window.isVisible()));
        QTimer::singleShot(0, &window, &QWidget::close);
    });
    return QApplication::exec() + 5;
}

int runWidgets(int argc, char** argv)
{
    QApplication application(argc, argv);
    application.setObjectName("guest");
    Window window("window");
    window.show();
    if (!comes("window"))
        return 99;
    print("roots " + rows(tree("sceneTree")).join(' '));
    print(QString("%1 gestures").arg(rows(tree("sceneTree"), 0).count("QGestureManager")));
    QTest::mouseClick(&window.button, Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier);
    const auto selected = [] { return tree("sceneTree")->currentIndex().data().toString(); };
    const bool isSelected = QTest::qWaitFor([&] { return selected() == "button"; }, 20000);
    print(QString("selected %1, %2 clicks").arg(isSelected).arg(window.clicks));
    QTest::mouseClick(&window.button, Qt::LeftButton);
    print(QString("%1 clicks").arg(window.clicks));
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
    if (what == "modal")
        return runModal(argc, argv);
    if (what == "quiet")
        return runQuiet(argc, argv);
    if (what == "closing")
        return runClosing(argc, argv);
    if (what == "core") {
        const QCoreApplication application(argc, argv);
        QCoreApplication::processEvents();
        return 3;
    }
    if (what == "abort")
        std::abort();
    return 4;
}
