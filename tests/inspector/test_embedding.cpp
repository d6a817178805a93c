// SPDX-License-Identifier: BSD-3-Clause
#include "CrvInspector.h"
#include "CrvServices.h"
#include "CrvShell.h"
#include "KnGroup.h"
#include "KnMaterial.h"
#include "KnPointLight.h"
#include "KnSensorQueue.h"
#include "RowInput.h"
#include "SceneReader.h"
#include "TextRows.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QDeadlineTimer>
#include <QLineEdit>
#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

#include <clocale>
#include <iostream>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// The scene of a program that the inspector is a guest in.
struct Room {
    Room()
    {
        group->setName("Room");
        lamp->setName("Lamp");
        group->addChild(lamp);
    }

    KnGroup* const group = new KnGroup;
    KnPointLight* const lamp = new KnPointLight;
    const KnNodePtr holder { group };
};

/// A window of the program's own that works with keys.
class KeyCounter : public QWidget {
public:
    void keyPressEvent(QKeyEvent*) override { ++count; }
    int count = 0;
};

void touchFields(KnFieldContainer& node)
{
    const KnFieldData* const fields = node.getContainerFieldData();
    for (int i = 0; i < fields->getNum(); ++i)
        fields->getField(&node, i)->touch();
}

template <class Widget>
Widget* find(const CrvInspector& inspector, const QString& name)
{
    return inspector.window()->findChild<Widget*>(name);
}

/// Clicks the lamp and one of its fields. The result is the editor's dock.
QWidget* selectLampField(const CrvInspector& inspector, const QString& name)
{
    clickRow(find<QTreeView>(inspector, u"sceneTree"_s), u"Lamp"_s);
    clickRow(find<QTreeView>(inspector, u"fieldList"_s), name);
    return find<QWidget>(inspector, u"Field Editor"_s);
}

void showActive(CrvInspector& inspector)
{
    inspector.show();
    QVERIFY(QTest::qWaitForWindowActive(inspector.window()));
}

/// The program's own loop, which ends when `done` says so, or at last with a failure. The result
/// counts its frames.
template <class Done>
int pollUntil(Done done)
{
    int frames = 0;
    const QDeadlineTimer patience(std::chrono::seconds(20));
    for (; !done() && !patience.hasExpired(); ++frames)
        CrvInspector::poll(2);
    return patience.hasExpired() ? -1 : frames;
}

QDialog* openDialog() { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); }

} // namespace

class TestEmbedding : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(u"Host"_s);
        QCoreApplication::setApplicationName(u"Viewer"_s);
    }
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
    }
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void threeLinesShowTheScene()
    {
        const Room room;
        CrvInspector inspector(room.group);
        QVERIFY(!inspector.window() && !inspector.isOpen());
        showActive(inspector);
        QCOMPARE(inspector.window()->windowTitle(), u"Corvane \u2013 Viewer"_s);
        const auto* const tree = find<QTreeView>(inspector, u"sceneTree"_s);
        QCOMPARE(tree->model()->index(0, 0).data().toString(), u"Room"_s);
        // What only a program with files of its own can do isn't offered.
        QStringList entries;
        for (const QAction* action : find<QMenu>(inspector, u"fileMenu"_s)->actions())
            entries += action->objectName();
        QCOMPARE(entries, QStringList({ u"saveCopyAction"_s, QString(), u"closeAction"_s }));
        QTest::keySequence(inspector.window()->focusWidget(), QKeySequence(u"Ctrl+W"_s));
        QVERIFY(!inspector.isOpen() && !inspector.window()->isVisible());
    }

    void theHostKeepsItsKeys()
    {
        const Room room;
        CrvInspector inspector(room.group);
        showActive(inspector);
        QCOMPARE(CrvServices::getInstance()->getSelectedField(), room.group->getField("visible"));
        QTest::keyClick(inspector.window()->focusWidget(), Qt::Key_F6);
        const QWidget* const ours = inspector.window()->focusWidget();
        QCOMPARE(ours->objectName(), u"fieldList"_s);

        KeyCounter host;
        host.show();
        host.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&host));
        for (const Qt::Key key : { Qt::Key_F1, Qt::Key_F6, Qt::Key_Return, Qt::Key_Escape })
            QTest::keyClick(&host, key);
        QCOMPARE(host.count, 4);
        QCOMPARE(inspector.window()->focusWidget(), ours);
        QVERIFY(!inspector.window()->findChild<QDialog*>());
    }

    void editsOutliveTheWindow()
    {
        const Room room;
        CrvInspector inspector(room.group);
        showActive(inspector);
        auto* const box = selectLampField(inspector, u"on"_s)->findChild<QCheckBox*>();
        QTest::mouseClick(box, Qt::LeftButton);
        QVERIFY(!room.lamp->on.getValue());
        auto* const line = selectLampField(inspector, u"intensity"_s)->findChild<QLineEdit*>();
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, u"0.25"_s);
        inspector.window()->close(); // and nobody asks whether to save
        QCOMPARE(room.lamp->intensity.getValue(), 0.25F);

        showActive(inspector);
        for (int i = 0; i < 2; ++i)
            QTest::keySequence(inspector.window()->focusWidget(), QKeySequence::Undo);
        QVERIFY(room.lamp->on.getValue() && room.lamp->intensity.getValue() == 1.0F);
    }

    void closedCostsNothing()
    {
        const Room room;
        const auto isAtRest = [&room, buffer = std::cout.rdbuf()] {
            touchFields(*room.group);
            touchFields(*room.lamp);
            CrvServices* const services = CrvServices::getInstance();
            return KnSensorQueue::getInstance().isEmpty() && services->getRoots().empty()
                && !services->getSelectedNode() && std::cout.rdbuf() == buffer;
        };
        for (int i = 0; i < 20; ++i) {
            CrvInspector inspector(room.group);
            inspector.show();
            selectLampField(inspector, u"on"_s);
            QVERIFY(!isAtRest());
            CrvServices::getInstance()->setPaused(true);
            inspector.close();
            QVERIFY(isAtRest() && !CrvServices::getInstance()->isPaused());
            inspector.show(); // and goes while it is open
            selectLampField(inspector, u"color"_s);
        }
        QVERIFY(isAtRest() && !CrvShell::getInstance());
        QCOMPARE(room.group->getReferenceCount(), 1);
    }

    void rootsComeAndGo()
    {
        const Room room;
        const KnNodePtr other(new KnMaterial);
        CrvInspector inspector;
        inspector.setRoots({ room.group, nullptr, room.group });
        inspector.show();
        selectLampField(inspector, u"on"_s);
        CrvServices* const services = CrvServices::getInstance();
        inspector.addRoot(other.get());
        QCOMPARE(services->getRoots().size(), std::size_t { 2 });
        QCOMPARE(services->getSelectedNode(), room.lamp);
        inspector.removeRoot(room.group);
        QVERIFY(!services->getSelectedNode());
        inspector.setRoot(nullptr);
        QVERIFY(services->getRoots().empty());
        QCOMPARE(other->getReferenceCount(), 1);
    }

    void copyIsSaved()
    {
        const Room room;
        const QTemporaryDir folder;
        CrvInspector inspector;
        const KnNodePtr first(new KnMaterial);
        inspector.setRoots({ first.get(), room.group });
        for (const QString& row : { u"Material"_s, u"Lamp"_s }) {
            showActive(inspector);
            clickRow(find<QTreeView>(inspector, u"sceneTree"_s), row);
            const QString file = folder.filePath(row + u".json"_s);
            QTimer::singleShot(0, this, [&file] {
                auto* const name = openDialog()->findChild<QLineEdit*>(u"fileNameEdit"_s);
                name->setText(file);
                QTest::keyClick(name, Qt::Key_Return);
            });
            QTest::keySequence(inspector.window()->focusWidget(), QKeySequence(u"Ctrl+Shift+S"_s));
            SceneReader reader;
            const KnNodePtr copy = reader.readFile(file);
            QVERIFY2(copy, qPrintable(reader.errorText()));
            // The root that the row stands below.
            QCOMPARE(copy->isOfType(KnGroup::getClassTypeId()), row == u"Lamp"_s);
        }
    }

    void hostKeepsItsOwn()
    {
        const Room room;
        QLineEdit hostLine;
        hostLine.show();
        const auto state = [&] {
            return std::make_tuple(QApplication::style(), QApplication::palette(),
                QGuiApplication::quitOnLastWindowClosed(), QLocale(), qApp->styleSheet(),
                QCoreApplication::organizationName(), QCoreApplication::applicationName(),
                QByteArray(std::setlocale(LC_ALL, nullptr)));
        };
        const auto before = state();
        const QSignalSpy lastClosed(qApp, &QGuiApplication::lastWindowClosed);
        CrvInspector inspector(room.group);
        inspector.show();
        selectLampField(inspector, u"on"_s);
        hostLine.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&hostLine));
        // The host's line has nothing to undo, and takes the key all the same.
        QKeyEvent key(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
        key.ignore();
        QCoreApplication::sendEvent(&hostLine, &key);
        QVERIFY(key.isAccepted());
        inspector.close();
        QVERIFY(before == state() && hostLine.hasFocus());
        hostLine.hide();
        inspector.show();
        inspector.close();
        QCOMPARE(lastClosed.size(), 0);
        QVERIFY(QSettings().allKeys().isEmpty());
        QVERIFY(QSettings(u"Orbel"_s, u"Corvane"_s).contains(u"window/layout"_s));
    }

    void secondOneIsRefused()
    {
        const Room room;
        CrvInspector inspector(room.group);
        {
            CrvInspector second(room.group);
            second.show();
            QVERIFY(!second.isOpen() && !second.window());
            QVERIFY(!second.loadPlugin(CORVANE_EXAMPLE_PLUGIN));
        }
        std::string error;
        QVERIFY(!inspector.loadPlugin("missing.so", &error) && !error.empty());
        QVERIFY2(inspector.loadPlugin(CORVANE_EXAMPLE_PLUGIN, &error), error.c_str());
        QVERIFY(!inspector.isOpen());
        inspector.show();
        QVERIFY(inspector.isOpen());
    }

    void framesGoOnBehindADialog_data()
    {
        // By the person, or with the window, from the frames or from a handler of the dialog's
        // loop.
        addTextRows({ { "Esc" }, { "close" }, { "destroy" }, { "destroy in handler" } });
    }
    void framesGoOnBehindADialog()
    {
        const auto [end] = textRow<1>();
        const Room room;
        auto inspector = std::make_unique<CrvInspector>(room.group);
        inspector->show();
        QWidget* const dock = selectLampField(*inspector, u"color"_s);
        auto* const swatch = dock->findChild<QPushButton*>(u"m_colorDisp"_s);
        QTimer::singleShot(0, swatch, [swatch] { QTest::mouseClick(swatch, Qt::LeftButton); });
        QVERIFY(pollUntil([] { return openDialog() != nullptr; }) >= 0);
        const QPointer<QColorDialog> dialog = qobject_cast<QColorDialog*>(openDialog());
        QVERIFY(dialog);
        // What the program writes meanwhile is shown, below a dialog that still works.
        const auto* const list = find<QTreeView>(*inspector, u"fieldList"_s)->model();
        const QSignalSpy refreshed(list, &QAbstractItemModel::dataChanged);
        room.lamp->on.setValue(false);
        QVERIFY(pollUntil([&] { return !refreshed.isEmpty(); }) > 0);
        QVERIFY(dialog && dialog->isVisible());
        dialog->setCurrentColor(Qt::red);

        if (end == u"Esc")
            QTimer::singleShot(0, dialog, [&] { QTest::keyClick(dialog.get(), Qt::Key_Escape); });
        else if (end == u"close")
            inspector->close();
        else if (end == u"destroy")
            inspector.reset();
        else
            QTimer::singleShot(0, this, [&] { inspector.reset(); });
        QVERIFY(pollUntil([&] { return !dialog; }) >= 0);
        QCOMPARE(room.lamp->color.getValue(), KbColor(1.0F, 1.0F, 1.0F));
        QCOMPARE(inspector != nullptr, end == u"Esc" || end == u"close");
        if (inspector)
            QCOMPARE(inspector->isOpen(), end == u"Esc");
        else
            QVERIFY(pollUntil([] { return !CrvShell::getInstance(); }) >= 0);
    }

    void dropsTheWindowBelowItsOwnDialog()
    {
        const Room room;
        auto inspector = std::make_unique<CrvInspector>(room.group);
        inspector->show();
        QWidget* const dock = selectLampField(*inspector, u"color"_s);
        QTimer::singleShot(0, this, [&] { inspector.reset(); });
        // The loop of the dialog is the program's own, and returns to the editor.
        QTest::mouseClick(dock->findChild<QPushButton*>(u"m_colorDisp"_s), Qt::LeftButton);
        QVERIFY(!inspector);
        CrvInspector next(room.group);
        next.show();
        QCoreApplication::processEvents();
        QVERIFY(next.isOpen());
    }

    void programWithoutQtRuns()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString& name : { u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s })
            environment.remove(name);
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(CORVANE_LOOP), { u"--frames"_s, u"20"_s });
        QVERIFY2(program.waitForFinished(-1), qPrintable(program.errorString()));
        const QString errors = QString::fromUtf8(program.readAllStandardError());
        QVERIFY2(program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0,
            qPrintable(errors));
        QCOMPARE(errors.count(u"there is no display"_s), 1);
        // Numbers as before there was an application object, whatever the language.
        const QString out = QString::fromUtf8(program.readAllStandardOutput());
        QVERIFY2(out.contains(QRegularExpression(u"^20 frames of \\d+\\.\\d\\d ms;"_s)),
            qPrintable(out));
    }

    void pollRunsWhatWaits()
    {
        CrvInspector::poll(0);
        const QPointer<QObject> doomed = new QObject;
        doomed->deleteLater();
        int nested = 0;
        QTimer::singleShot(0, this, [&] {
            CrvInspector::poll(2); // from within itself
            ++nested;
        });
        QVERIFY(pollUntil([&] { return !doomed && nested == 1; }) >= 0);
    }

    void callsCrossThreadsInOrder()
    {
        CrvInspector::poll(0);
        std::vector<int> order;
        bool onThisThread = true;
        const auto call = [&](int number) {
            CrvInspector::call([&, number, self = std::this_thread::get_id()] {
                onThisThread = onThisThread && QThread::currentThread() == qApp->thread();
                order.push_back(number);
            });
        };
        std::thread([&] { // and comes to an end though nobody polls
            for (int i = 0; i < 3; ++i)
                call(i);
        })
            .join();
        call(3); // from here, so at once
        QCOMPARE(order, std::vector<int> { 3 });
        QVERIFY(pollUntil([&] { return order.size() == 4; }) >= 0);
        QVERIFY(onThisThread && order == std::vector<int>({ 3, 0, 1, 2 }));
    }
};

int main(int argc, char** argv)
{
    int status = 0;
    {
        const QApplication application(argc, argv);
        TestEmbedding test;
        status = QTest::qExec(&test, argc, argv);
    }
    // One that outlives the application object, and is shown without any.
    const Room room;
    CrvInspector inspector(room.group);
    {
        const QApplication application(argc, argv);
        inspector.show();
        CrvInspector::poll(2);
        status += int { !inspector.isOpen() };
    }
    inspector.show();
    return status + int { inspector.window() != nullptr };
}

#include "test_embedding.moc"
