// SPDX-License-Identifier: BSD-3-Clause
#include "CrvCommand.h"
#include "CrvServices.h"
#include "CrvUndoSteps.h"
#include "EditGestures.h"
#include "HistoryView.h"
#include "InspectorFixture.h"
#include "KnGroup.h"
#include "KnMFields.h"
#include "KnSFields.h"
#include "SliderInput.h"

#include <QAbstractEventDispatcher>
#include <QCheckBox>
#include <QColorDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTableView>
#include <QUndoStack>

#include <algorithm>
#include <functional>

namespace {

/// A star stands for a value that depends on how many pixels the scale is long.
bool fit(const QStringList& texts, const QStringList& patterns)
{
    return std::equal(texts.begin(), texts.end(), patterns.begin(), patterns.end(),
        [](const QString& text, const QString& pattern) {
            return QRegularExpression::fromWildcard(pattern).match(text).hasMatch();
        });
}

} // namespace

/// What a person does in the editors of the window, and what becomes of it in the history.
class TestUndoSteps : public InspectorTest {
    Q_OBJECT
public:
    static void initMain() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

private Q_SLOTS:
    void init()
    {
        InspectorTest::init();
        m_services = CrvServices::getInstance();
        m_stack = m_services->getUndoStack();
        // However long the machine takes between two keys.
        m_gestures = m_inspector->window.findChild<EditGestures*>();
        m_gestures->setPause(3600000);
    }

    void oneGestureIsOneStep_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<Act>("act");
        QTest::addColumn<QStringList>("steps");
        const auto add
            = [](const char* name, const char* place, Act act, const QStringList& steps) {
                  QTest::newRow(name) << QString::fromLatin1(place) << std::move(act) << steps;
              };
        add("drag", "Desk lamp.intensity", [this] { drag(40); },
            { u"Desk lamp.intensity: 0.65 → *"_s });
        add("drag and back", "Window light.intensity", [this] { drag(40, -40); }, {});
        add("two drags", "Desk lamp.intensity",
            [this] {
                drag(40);
                drag(10);
            },
            { u"Desk lamp.intensity: 0.65 → *"_s, u"Desk lamp.intensity: * → *"_s });
        add("wheel", "Desk lamp.intensity",
            [this] {
                SliderInput slider(find<QSlider>());
                for (int i = 0; i < 3; ++i)
                    slider.turnWheel();
            },
            { u"Desk lamp.intensity: 0.65 → 1.6"_s });
        add("arrow keys", "Desk lamp.intensity",
            [this] {
                find<QSlider>()->setFocus();
                for (int i = 0; i < 3; ++i)
                    QTest::keyClick(find<QSlider>(), Qt::Key_Right);
            },
            { u"Desk lamp.intensity: 0.65 → 1"_s });
        add("two entries", "Desk lamp.intensity",
            [this] {
                type(u"0.5\r"_s);
                type(u"0.75\r"_s);
            },
            { u"Desk lamp.intensity: 0.65 → 0.5"_s, u"Desk lamp.intensity: 0.5 → 0.75"_s });
        add("visit of a string", "Front view.description",
            [this] {
                QTest::mouseClick(find<QLineEdit>(), Qt::LeftButton);
                m_inspector->view(u"sceneTree"_s)->setFocus();
            },
            {});
        add("text", "Front view.description",
            [this] {
                type(u"abc"_s);
                m_inspector->view(u"sceneTree"_s)->setFocus();
            },
            { u"Front view.description: \"From the door\" → \"abc\""_s });
        add("check box", "Desk lamp.on",
            [this] { QTest::mouseClick(find<QCheckBox>(), Qt::LeftButton, {}, QPoint(8, 8)); },
            { u"Desk lamp.on: FALSE → TRUE"_s });
        add("color of a dialog", "Desk lamp.color", [this] { chooseColor(Qt::red); },
            { u"Desk lamp.color: 1 0.8 0.55 → 1 0 0"_s });
        add("same color again", "Oak.specularColor",
            [this] {
                chooseColor(Qt::red);
                chooseColor(Qt::red);
            },
            { u"Oak.specularColor: 0.1 0.1 0.1 → 1 0 0"_s });
        add("row of a color dialog", "Oak.diffuseColor", [this] { chooseColor(Qt::red, true); },
            { u"Oak.diffuseColor: row 1: 0.55 0.4 0.25 → 1 0 0"_s });
        add("ignore", "Desk lamp.intensity", [this] { click("m_ignoreButton"); },
            { u"Desk lamp.intensity: ignored"_s });
        add("default", "Desk lamp.intensity", [this] { click("m_defaultButton"); },
            { u"Desk lamp.intensity: default"_s });
        add("each key of a line", "Fan turns.startTime", [this] { type(u"2.25"_s); },
            { u"Fan turns.startTime: 1.5 → 2.25"_s });
        add("keys that come to nothing", "Fan turns.startTime",
            [this] {
                type(u"2"_s);
                QTest::keyClick(find<QLineEdit>(), Qt::Key_Backspace);
                QTest::keyClicks(find<QLineEdit>(), u"1.5"_s);
                m_inspector->view(u"sceneTree"_s)->setFocus();
            },
            {});
        add("base 16", "Frame style.selectionMask", [this] { drag(-40); },
            { u"Frame style.selectionMask: 0xff00ff → 0x*"_s });
        add("slider in a cell", "Room.priority",
            [this] {
                open(3);
                drag(20);
            },
            { u"Room.priority: row 4: 2 → *"_s });
        add("wheel over a cell", "Oak.shininess",
            [this] {
                open(1);
                SliderInput(find<QSlider>()).turnWheel();
                SliderInput(find<QSlider>()).turnWheel();
            },
            { u"Oak.shininess: row 2: 0.35 → 0.41"_s });
        add("typed into a cell's slider", "Oak.shininess",
            [this] {
                open(1);
                typeIntoCell(u"0.5"_s);
                m_inspector->view(u"sceneTree"_s)->setFocus();
            },
            { u"Oak.shininess: row 2: 0.35 → 0.5"_s });
        add("cell left by Return", "Fan turns.keyFraction",
            [this] {
                open(2);
                typeIntoCell(u"0.625\r"_s);
            },
            { u"Fan turns.keyFraction: row 3: 0.5 → 0.625"_s });
        add("cell left by Tab", "Fan turns.keyFraction",
            [this] {
                open(2);
                typeIntoCell(u"0.625\t"_s);
            },
            { u"Fan turns.keyFraction: row 3: 0.5 → 0.625"_s });
        add("cell left for the scene", "Fan turns.keyFraction",
            [this] {
                open(2);
                typeIntoCell(u"0.625"_s);
                m_inspector->clickNode(u"Desk lamp"_s);
            },
            { u"Fan turns.keyFraction: row 3: 0.5 → 0.625"_s });
        add("cell left unchanged", "Fan turns.keyFraction",
            [this] {
                open(2);
                typeIntoCell(u"0.5\r"_s);
            },
            {});
        add("cell and new row by one click", "Room.priority",
            [this] {
                open(3);
                typeIntoCell(u"7"_s);
                click("m_addButton");
            },
            { u"Room.priority: row 4: 2 → 7"_s, u"Room.priority: 1 row added at 5"_s });
        add("rows by keys", "Room.plane",
            [this] {
                cell(2);
                QTest::keyClick(find<QTableView>(), Qt::Key_Plus);
                QTest::keyClick(find<QTableView>(), Qt::Key_Delete);
            },
            { u"Room.plane: 1 row added at 4"_s, u"Room.plane: 1 row deleted at 3"_s });
        add("component of a row", "Room.plane",
            [this] {
                open(2, 1);
                typeIntoCell(u"5\r"_s);
            },
            { u"Room.plane: row 3: 0 1 0 0 → 0 5 0 0"_s });
        add("row moved", "Room.plane",
            [this] {
                cell(1);
                find<QSpinBox>()->setValue(2);
                click("m_downButton");
            },
            { u"Room.plane: rows 2 and 3 swapped"_s });
        add("equal rows swapped", "Room.priority",
            [this] {
                find<QSpinBox>()->setValue(2);
                click("m_upButton");
            },
            {});
        add("array reset", "Room.priority", [this] { click("m_defaultButton"); },
            { u"Room.priority: default"_s });
        add("default twice", "Desk lamp.intensity",
            [this] {
                click("m_defaultButton");
                click("m_defaultButton");
            },
            { u"Desk lamp.intensity: default"_s });
    }
    void oneGestureIsOneStep()
    {
        QFETCH(const QString, place);
        QFETCH(const Act, act);
        QFETCH(const QStringList, steps);
        select(place);
        const QString before = m_inspector->text(place);
        act();
        QTRY_VERIFY2(fit(texts(), steps), qPrintable(texts().join(u", "_s)));
        const QString after = m_inspector->text(place);
        for (int i = 0; i < steps.size(); ++i)
            m_stack->undo();
        QCOMPARE(m_inspector->text(place), before);
        QVERIFY(!m_inspector->window.document().isModified());
        m_stack->setIndex(m_stack->count());
        QCOMPARE(m_inspector->text(place), after);
    }

    /// Whatever the program does meanwhile is not the person's.
    void theProgramWritesMeanwhile_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("value"); // that the program writes
        QTest::addColumn<QStringList>("steps");
        QTest::newRow("the value that is dragged")
            << u"Desk lamp.intensity"_s << u"7"_s
            << QStringList { u"Desk lamp.intensity: 0.65 → *"_s };
        QTest::newRow("another row") << u"Room.priority"_s << u"[ 5, 0, -1, 2 ]"_s
                                     << QStringList { u"Room.priority: row 4: 2 → *"_s };
    }
    void theProgramWritesMeanwhile()
    {
        QFETCH(const QString, place);
        QFETCH(const QString, value);
        QFETCH(const QStringList, steps);
        select(place);
        KnField* const field = m_inspector->field(place);
        const QString before = m_inspector->text(place);
        if (place.startsWith(u"Room"_s))
            open(3);
        SliderInput slider(find<QSlider>());
        slider.press();
        slider.moveBy(10);
        QCoreApplication::processEvents();
        if (auto* const array = dynamic_cast<KnMFShort*>(field))
            array->set1Value(0, 5);
        else
            field->set(toKbString(value));
        QCoreApplication::processEvents();
        m_inspector->field(u"Oak.transparency"_s)->set("0.5");
        slider.moveBy(10);
        slider.release();
        QTRY_VERIFY2(fit(texts(), steps), qPrintable(texts().join(u", "_s)));
        m_stack->undo();
        QCOMPARE(m_inspector->text(place), place.startsWith(u"Room"_s) ? value : before);
        QCOMPARE(m_inspector->text(u"Oak.transparency"_s), u"0.5"_s);
    }

    void clicksBesideAMovingArrayAreNoSteps()
    {
        select(u"Room.priority"_s);
        auto* const array = dynamic_cast<KnMFShort*>(m_inspector->field(u"Room.priority"_s));
        for (int i = 0; i < 4; ++i) {
            cell(i);
            array->set1Value(1, std::int16_t(i));
            array->setNum(5 + i);
            QCoreApplication::processEvents();
        }
        QCOMPARE(m_stack->count(), 0);
    }

    void idleEditsKeepWhatCanBeRedone()
    {
        select(u"Front view.description"_s);
        type(u"abc\r"_s);
        QTRY_COMPARE(m_stack->count(), 1);
        QCoreApplication::processEvents();
        m_inspector->press(QKeySequence::Undo);
        QCOMPARE(m_stack->index(), 0);
        QTest::mouseClick(find<QLineEdit>(), Qt::LeftButton);
        m_inspector->view(u"sceneTree"_s)->setFocus();
        QCoreApplication::processEvents();
        QVERIFY(m_stack->canRedo() && !m_inspector->window.isWindowModified());
    }

    void everyCommandIsExecuted()
    {
        select(u"Desk lamp.intensity"_s);
        const int before = m_services->getUndoSteps()->executedCommands();
        drag(40);
        QCOMPARE(m_stack->count(), 1);
        QCOMPARE(m_services->getUndoSteps()->executedCommands() - before, 11); // and the release
    }

    void aPauseEndsAGesture()
    {
        select(u"Fan turns.startTime"_s);
        type(u"2"_s);
        // Who goes on at once goes on with the same.
        QTest::keyClicks(find<QLineEdit>(), u"3"_s);
        QTRY_COMPARE(texts(), QStringList { u"Fan turns.startTime: 1.5 → 23"_s });
        m_gestures->setPause(1);
        QTest::keyClicks(find<QLineEdit>(), u"4"_s);
        const auto* const dispatcher = QAbstractEventDispatcher::instance();
        QTRY_VERIFY(dispatcher->registeredTimers(m_gestures).isEmpty());
        QTest::keyClicks(find<QLineEdit>(), u"5"_s);
        QTRY_COMPARE(m_stack->count(), 2);
    }

    void undoInTheMiddleOfAGesture()
    {
        select(u"Fan turns.startTime"_s);
        type(u"2"_s);
        QCoreApplication::processEvents();
        m_inspector->press(QKeySequence::Undo);
        QCOMPARE(m_stack->index(), 0);
        QCOMPARE(m_inspector->text(u"Fan turns.startTime"_s), u"1.5"_s);
        QTest::keyClicks(find<QLineEdit>(), u"7"_s);
        QTRY_COMPARE(m_stack->index(), 1);
        QCoreApplication::processEvents();
        m_inspector->press(QKeySequence::Undo);
        QCOMPARE(m_inspector->text(u"Fan turns.startTime"_s), u"1.5"_s);

        select(u"Room.priority"_s);
        open(3);
        SliderInput slider(find<QSlider>());
        slider.press();
        slider.moveBy(10);
        m_inspector->press(QKeySequence::Undo);
        QCOMPARE(m_inspector->text(u"Room.priority"_s), u"[ 0, 0, -1, 2 ]"_s);
    }

    void undoShowsWhatItChanges()
    {
        select(u"Desk lamp.intensity"_s);
        type(u"0.5\r"_s);
        select(u"Oak.transparency"_s);
        type(u"0.25\r"_s);
        m_inspector->clickNode(u"Room"_s);
        QStringList selected;
        const auto note = connect(
            m_services, &CrvServices::selectedFieldChanged, this, [&](const KnField* field) {
                if (field)
                    selected += fieldName(*field);
            });
        m_inspector->press(QKeySequence::Undo);
        QCOMPARE(m_services->getSelectedField(), m_inspector->field(u"Oak.transparency"_s));
        m_stack->setIndex(2);
        m_inspector->clickNode(u"Room"_s);
        selected.clear();
        m_stack->setIndex(0); // two steps in one go
        QCOMPARE(selected, QStringList { u"intensity"_s });
        // What has left the scene is changed, and not shown.
        m_stack->setIndex(1);
        KnField* const gone = m_inspector->field(u"Desk lamp.intensity"_s);
        auto* const scene = static_cast<KnGroup*>(m_inspector->window.document().root().get());
        scene->removeChild(gone->getContainer());
        m_inspector->clickNode(u"Room"_s);
        m_stack->undo();
        QCOMPARE(m_services->getSelectedNode()->getName(), KbName("Room"));
        QCOMPARE(static_cast<KnSFFloat*>(gone)->getValue(), 0.65F);
        disconnect(note);
    }

    void theHistoryIsntChangedByAccident()
    {
        select(u"Desk lamp.intensity"_s);
        type(u"0.5\r"_s);
        type(u"0.25\r"_s);
        auto* const history = m_inspector->window.findChild<HistoryView*>();
        QTRY_COMPARE(history->model()->rowCount(), 3);
        const auto click = [history](int row, Qt::MouseButton button) {
            QTest::mouseClick(history->viewport(), button, {},
                history->visualRect(history->model()->index(row, 0)).center());
        };
        click(0, Qt::RightButton);
        click(0, Qt::MiddleButton);
        QCOMPARE(m_stack->index(), 2);
        click(1, Qt::LeftButton);
        QCOMPARE(m_stack->index(), 1);
        m_inspector->view(u"sceneTree"_s)->setFocus();
        for (int i = 0; i < 20; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QVERIFY(!history->hasFocus());
        }
    }

    /// Nothing is compared where that would take long; an edit that is undone leaves no trace.
    void aLongArrayIsUnmodifiedAfterUndo()
    {
        select(u"Room.priority"_s);
        auto* const array = dynamic_cast<KnMFShort*>(m_inspector->field(u"Room.priority"_s));
        array->setNum(100000);
        QCoreApplication::processEvents();
        QString error;
        QVERIFY(m_inspector->window.document().save(m_inspector->sceneFile, &error));
        open(3);
        drag(20);
        QTRY_COMPARE(m_stack->count(), 1);
        QVERIFY(m_inspector->window.document().isModified());
        m_stack->undo();
        QCOMPARE(int { (*array)[3] }, 2);
        QVERIFY(!m_inspector->window.document().isModified());
    }

private:
    using Act = std::function<void()>;

    void select(const QString& place)
    {
        m_services->selectField(m_inspector->field(place));
        QCoreApplication::processEvents();
    }
    QStringList texts() const
    {
        QStringList texts;
        for (int i = 0; i < m_stack->count(); ++i)
            texts += m_stack->text(i);
        return texts;
    }
    template <class Widget>
    Widget* find(const QString& name = {}) const
    {
        return m_inspector->dock(u"Field Editor"_s)->widget()->findChild<Widget*>(name);
    }
    QPoint cell(int row, int column = 0) const
    {
        auto* const table = find<QTableView>();
        const QPoint at = table->visualRect(table->model()->index(row, column)).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, at);
        return at;
    }
    void open(int row, int column = 0) const
    {
        QTest::mouseDClick(find<QTableView>()->viewport(), Qt::LeftButton, {}, cell(row, column));
    }
    void typeIntoCell(const QString& text)
    {
        auto* const line = find<QTableView>()->findChild<QLineEdit*>();
        line->setFocus();
        line->selectAll();
        for (const QChar key : text)
            QTest::keyClick(QApplication::focusWidget(), key.toLatin1());
    }
    void click(const char* button)
    {
        QTest::mouseClick(find<QPushButton>(QString::fromLatin1(button)), Qt::LeftButton);
    }
    void chooseColor(const QColor& color, bool inTable = false)
    {
        QTimer timer;
        connect(&timer, &QTimer::timeout, &timer, [&] {
            auto* const dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            timer.stop();
            dialog->setCurrentColor(color);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        timer.start(0);
        if (inTable)
            cell(0);
        else
            click("m_colorDisp");
        QCoreApplication::processEvents();
    }
    void drag(int pixels, int back = 0)
    {
        SliderInput slider(find<QSlider>());
        slider.press();
        for (int i = 0; i < 10; ++i)
            slider.moveBy(pixels / 10);
        for (int i = 0; i < 10; ++i)
            slider.moveBy(back / 10);
        slider.release();
        QCoreApplication::processEvents();
    }
    void type(const QString& text)
    {
        auto* const line = find<QLineEdit>();
        QTest::mouseClick(line, Qt::LeftButton);
        line->selectAll();
        QTest::keyClicks(line, text);
    }

    CrvServices* m_services = nullptr;
    QUndoStack* m_stack = nullptr; // the services'
    EditGestures* m_gestures = nullptr; // the window's
};

QTEST_MAIN(TestUndoSteps)
#include "test_undo_steps.moc"
