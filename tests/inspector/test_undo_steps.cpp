// SPDX-License-Identifier: BSD-3-Clause
#include "CrvServices.h"
#include "CrvUndoSteps.h"
#include "EditGestures.h"
#include "HistoryView.h"
#include "InspectorFixture.h"
#include "KnGroup.h"
#include "KnMFields.h"
#include "KnSFields.h"
#include "SliderInput.h"
#include "TextRows.h"

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
#include <map>

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
        // The field, what a person does there (see `act`), and the steps of it.
        addTextRows({
            { "Desk lamp.intensity", "drag 40", "0.65 → *" },
            { "Window light.intensity", "drag 40 -40" },
            { "Desk lamp.intensity", "drag 40, drag 10", "0.65 → *", "* → *" },
            { "Desk lamp.intensity", "wheel, wheel, wheel", "0.65 → 1.6" },
            { "Desk lamp.intensity", "slider Right, slider Right, slider Right", "0.65 → 1" },
            { "Desk lamp.intensity", "type 0.5\r, type 0.75\r", "0.65 → 0.5", "0.5 → 0.75" },
            { "Front view.description", "click, leave" },
            { "Front view.description", "type abc, leave", "\"From the door\" → \"abc\"" },
            { "Desk lamp.on", "check", "FALSE → TRUE" },
            { "Desk lamp.color", "red", "1 0.8 0.55 → 1 0 0" },
            { "Oak.specularColor", "red, red", "0.1 0.1 0.1 → 1 0 0" },
            { "Oak.diffuseColor", "red row", "row 1: 0.55 0.4 0.25 → 1 0 0" },
            { "Desk lamp.intensity", "button m_ignoreButton", "ignored" },
            { "Desk lamp.intensity", "button m_defaultButton", "default" },
            { "Desk lamp.intensity", "button m_defaultButton, button m_defaultButton", "default" },
            { "Room.priority", "button m_defaultButton", "default" },
            { "Fan turns.startTime", "type 2.25", "1.5 → 2.25" },
            { "Fan turns.startTime", "type 2, line Backspace, add 1.5, leave" },
            { "Frame style.selectionMask", "drag -40", "0xff00ff → 0x*" },
            { "Room.priority", "open 3, drag 20", "row 4: 2 → *" },
            { "Oak.shininess", "open 1, wheel, wheel", "row 2: 0.35 → 0.41" },
            { "Oak.shininess", "open 1, fill 0.5, leave", "row 2: 0.35 → 0.5" },
            { "Fan turns.keyFraction", "open 2, fill 0.625\r", "row 3: 0.5 → 0.625" },
            { "Fan turns.keyFraction", "open 2, fill 0.625\t", "row 3: 0.5 → 0.625" },
            { "Fan turns.keyFraction", "open 2, fill 0.625, node", "row 3: 0.5 → 0.625" },
            { "Fan turns.keyFraction", "open 2, fill 0.5\r" },
            { "Room.priority", "open 3, fill 7, button m_addButton", "row 4: 2 → 7",
                "1 row added at 5" },
            { "Room.plane", "cell 2, table +, table Del", "1 row added at 4",
                "1 row deleted at 3" },
            { "Room.plane", "open 2 1, fill 5\r", "row 3: 0 1 0 0 → 0 5 0 0" },
            { "Room.plane", "cell 1, box 2, button m_downButton", "rows 2 and 3 swapped" },
            { "Room.priority", "box 2, button m_upButton" }, // they are equal
        });
    }
    void oneGestureIsOneStep()
    {
        const auto [place, acts, first, second] = textRow<4>();
        QStringList steps;
        for (const QString& text : { first, second }) {
            if (!text.isEmpty())
                steps += place + u": "_s + text;
        }
        select(place);
        const QString before = m_inspector->text(place);
        for (const QString& each : acts.split(u", "_s))
            act(each);
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
        // The second text is the value that the program writes.
        addTextRows({ { "Desk lamp.intensity", "7", "Desk lamp.intensity: 0.65 → *" },
            { "Room.priority", "[ 5, 0, -1, 2 ]", "Room.priority: row 4: 2 → *" } });
    }
    void theProgramWritesMeanwhile()
    {
        const auto [place, value, step] = textRow<3>();
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
        QTRY_VERIFY2(fit(texts(), { step }), qPrintable(texts().join(u", "_s)));
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

    void whatIsSavedInTheMiddleOfAGestureIsReached()
    {
        select(u"Fan turns.startTime"_s);
        type(u"2"_s);
        QTRY_COMPARE(m_stack->count(), 1);
        m_stack->setClean();
        QTest::keyClicks(find<QLineEdit>(), u"3"_s);
        QTRY_COMPARE(m_stack->count(), 2);
        m_stack->undo();
        QCOMPARE(m_inspector->text(u"Fan turns.startTime"_s), u"2"_s);
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
        const auto note = connect(m_services, &CrvServices::selectedFieldChanged, this,
            [names = &selected](const KnField* field) {
                if (field)
                    *names += fieldName(*field);
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
    /// One thing that a person does: a word, and what it is done with.
    void act(const QString& text)
    {
        const QString with = text.section(u' ', 1);
        const int number = with.section(u' ', 0, 0).toInt();
        const int second = with.section(u' ', 1).toInt();
        const std::map<QString, std::function<void()>> acts {
            { u"drag"_s, [&] { drag(number, second); } },
            { u"wheel"_s, [&] { SliderInput(find<QSlider>()).turnWheel(); } },
            { u"slider"_s, [&] { press(find<QSlider>(), with); } },
            { u"line"_s, [&] { press(find<QLineEdit>(), with); } },
            { u"table"_s, [&] { press(find<QTableView>(), with); } },
            { u"click"_s, [&] { QTest::mouseClick(find<QLineEdit>(), Qt::LeftButton); } },
            { u"type"_s, [&] { type(with); } },
            { u"add"_s, [&] { QTest::keyClicks(find<QLineEdit>(), with); } },
            { u"leave"_s, [&] { m_inspector->view(u"sceneTree"_s)->setFocus(); } },
            { u"node"_s, [&] { m_inspector->clickNode(u"Desk lamp"_s); } },
            { u"check"_s,
                [&] {
                    QTest::mouseClick(find<QCheckBox>(), Qt::LeftButton, {}, { 8, 8 });
                } },
            { u"red"_s, [&] { chooseColor(Qt::red, with == u"row"); } },
            { u"button"_s, [&] { click(qPrintable(with)); } },
            { u"cell"_s, [&] { cell(number); } },
            { u"open"_s, [&] { open(number, second); } },
            { u"fill"_s, [&] { typeIntoCell(with); } },
            { u"box"_s, [&] { find<QSpinBox>()->setValue(number); } },
        };
        acts.at(text.section(u' ', 0, 0))();
    }
    static void press(QWidget* widget, const QString& key)
    {
        widget->setFocus();
        QTest::keyClick(widget, QKeySequence(key)[0].key());
    }
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
