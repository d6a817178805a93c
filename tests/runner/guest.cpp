// SPDX-License-Identifier: BSD-3-Clause
#include "GuestView.h"

#include <QAction>
#include <QDialog>
#include <QDockWidget>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTimer>
#include <QTranslator>

#include <cstdlib>
#include <memory>

// A program under inspection, which looks at what is shown of it and prints it. Its first argument
// says what it does.

namespace {

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

/// Shows a window, which takes its time to come, until it is ended from outside, or for a while.
int runQuiet(int argc, char** argv)
{
    QApplication application(argc, argv);
    application.setObjectName("guest");
    std::unique_ptr<Window> window;
    QTimer::singleShot(300, &application, [&window] {
        window = std::make_unique<Window>("window");
        window->show();
    });
    QAction action("Loose");
    action.setObjectName("action");
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

/// Eats what it hears of, wherever that goes.
class Eater : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        return event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress;
    }
};

int runFiltered(int argc, char** argv)
{
    QApplication application(argc, argv);
    application.setObjectName("guest");
    Eater eater;
    application.installEventFilter(&eater);
    Window window("window");
    window.show();
    if (!comes("window"))
        return 99;
    QWidget* const inspector = tree("sceneTree")->window();
    auto* const line = inspector->findChild<QLineEdit*>("sceneFilter");
    click(&window.button, window.button.rect().center());
    print(QString("row %1, %2 clicks").arg(clickRow("window")).arg(window.clicks));
    inspector->activateWindow();
    click(line, line->rect().center());
    QTest::keyClick(inspector->windowHandle(), Qt::Key_X);
    print("typed " + line->text());
    application.removeEventFilter(&eater);
    click(&window.button, window.button.rect().center());
    print(QString("%1 clicks").arg(window.clicks));
    return 0;
}

class Translator : public QTranslator {
public:
    QString translate(const char*, const char*, const char*, int) const override { return "XX"; }
    bool isEmpty() const override { return false; }
};

int runTranslated(int argc, char** argv)
{
    QApplication application(argc, argv);
    Translator translator;
    QCoreApplication::installTranslator(&translator);
    Window window("window");
    window.show();
    if (!comes("window"))
        return 99;
    QStringList texts;
    QWidget* const inspector = tree("sceneTree")->window();
    for (const QMenu* const menu : inspector->findChildren<QMenu*>())
        texts += menu->title();
    for (const QDockWidget* const dock : inspector->findChildren<QDockWidget*>())
        texts += dock->windowTitle();
    print(QString("file %1").arg(texts.contains("&File")));
    print(QString("mixed %1").arg(texts.contains("XX")));
    print("own " + QObject::tr("Go"));
    return 0;
}

/// Where the line around the selected widget is, seen from the window; null while it isn't seen.
QRect outline(const QWidget& window)
{
    const auto* const line = window.findChild<QWidget*>("corvaneOutline");
    return line && line->isVisible() ? line->geometry() : QRect();
}

int runOutline(int argc, char** argv)
{
    QApplication application(argc, argv);
    Window window("window");
    // Takes all children for panes.
    QSplitter splitter(&window);
    splitter.setWindowFlag(Qt::Window);
    splitter.setObjectName("splitter");
    QScrollArea area;
    QWidget content;
    content.resize(400, 2000);
    QPushButton button("Deep", &content);
    button.setObjectName("deep");
    button.setGeometry(10, 100, 100, 30);
    area.setWidget(&content);
    splitter.addWidget(&area);
    splitter.resize(500, 400);
    splitter.show();
    window.resize(300, 300);
    window.show();
    if (!comes("window"))
        return 99;
    const auto isAround = [&](const QWidget& widget, const QWidget& top) {
        const QRect rect(widget.mapTo(&top, QPoint()), widget.size());
        return QTest::qWaitFor([&] { return outline(top) == (rect & top.rect()); }, 20000);
    };
    QTest::mouseClick(&button, Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier);
    print(QString("around %1, %2 panes").arg(isAround(button, splitter)).arg(splitter.count()));
    area.verticalScrollBar()->setValue(40);
    print(QString("scrolled %1").arg(isAround(button, splitter)));
    area.verticalScrollBar()->setValue(1000);
    print(
        QString("out %1").arg(QTest::qWaitFor([&] { return outline(splitter).isNull(); }, 20000)));
    button.setParent(&window);
    button.show();
    print(QString("moved %1").arg(isAround(button, window)));
    const QStringList shown
        = rows(tree("sceneTree"), static_cast<int>(rows(tree("sceneTree")).indexOf("window")));
    print(QString("listed %1").arg(shown.contains("corvaneOutline")));
    bool pressed = false;
    QObject::connect(&button, &QPushButton::pressed, &window, [&pressed] { pressed = true; });
    click(&button, { 1, 1 }); // on the line
    print(QString("pressed %1").arg(pressed));
    tree("sceneTree")->window()->close();
    print(QString("gone %1").arg(outline(window).isNull()));
    return 0;
}

int runWidgets(int argc, char** argv)
{
    QApplication application(argc, argv);
    application.setObjectName("guest");
    Window window("window");
    window.show();
    if (!comes("window"))
        return 99;
    const auto selected = [] { return tree("sceneTree")->currentIndex().data().toString(); };
    print("roots " + rows(tree("sceneTree")).join(' ') + ", on " + selected());
    print(QString("%1 gestures").arg(rows(tree("sceneTree"), 0).count("QGestureManager")));
    QTest::mouseClick(&window.button, Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier);
    const bool isSelected = QTest::qWaitFor([&] { return selected() == "button"; }, 20000);
    print(QString("selected %1, %2 clicks").arg(isSelected).arg(window.clicks));
    QTest::mouseClick(&window.button, Qt::LeftButton);
    print(QString("%1 clicks").arg(window.clicks));
    const auto isShown = [] { return rows(tree("sceneTree")).contains("second"); };
    {
        QMenu menu;
        menu.setObjectName("menu");
        QWidget second;
        second.setObjectName("second");
        second.show();
        print(QString("second %1").arg(QTest::qWaitFor(isShown, 20000)));
        print(rows(tree("sceneTree")).join(' '));
    }
    print(QString("gone %1").arg(QTest::qWaitFor([&] { return !isShown(); }, 20000)));
    const auto isLoose = [] {
        const QStringList tops = rows(tree("sceneTree"));
        const auto top = static_cast<int>(tops.indexOf("Objects without a parent"));
        return top >= 0 && rows(tree("sceneTree"), top).contains("loose");
    };
    {
        QAction loose;
        loose.setObjectName("loose");
        print(QString("loose %1").arg(QTest::qWaitFor(isLoose, 20000)));
        loose.setParent(&window);
        const QAction other; // so that there is something to look for
        print(QString("taken %1").arg(QTest::qWaitFor([&] { return !isLoose(); }, 20000)));
    }
    // Closed, it comes back with what has come meanwhile.
    QWidget* const inspector = tree("sceneTree")->window();
    inspector->close();
    QAction late;
    late.setObjectName("loose");
    QTest::mouseClick(&window.button, Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier);
    print(QString("back %1, selected %2, loose %3, %4 clicks")
              .arg(inspector->isVisible())
              .arg(QTest::qWaitFor([&] { return selected() == "button"; }, 20000))
              .arg(QTest::qWaitFor(isLoose, 20000))
              .arg(window.clicks));
    // What the programs that it starts would find.
    print("preload " + qEnvironmentVariable("LD_PRELOAD"));
    print(QString("asked %1").arg(qEnvironmentVariableIsSet("CORVANE_RUN_REQUEST")));
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
    if (what == "filtered")
        return runFiltered(argc, argv);
    if (what == "translated")
        return runTranslated(argc, argv);
    if (what == "outline")
        return runOutline(argc, argv);
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
