// SPDX-License-Identifier: BSD-3-Clause
#include "CrvCommand.h"
#include "CrvServices.h"
#include "CrvUndoSteps.h"
#include "HistoryView.h"
#include "InspectorFixture.h"
#include "KnMFields.h"
#include "KnSFields.h"
#include "SliderInput.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QUndoStack>

#include <functional>

/// What a person does in the editors of the window, and what becomes of it in the history.
class TestUndoSteps : public InspectorTest {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        InspectorTest::init();
        m_services = CrvServices::getInstance();
        m_stack = m_services->getUndoStack();
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
            { u"Desk lamp.intensity: 0.65 → 4.1"_s });
        add("drag and back", "Window light.intensity", [this] { drag(40, -40); }, {});
        add("two drags", "Desk lamp.intensity",
            [this] {
                drag(40);
                drag(10);
            },
            { u"Desk lamp.intensity: 0.65 → 4.1"_s, u"Desk lamp.intensity: 4.1 → 4.9"_s });
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
        add("ignore", "Desk lamp.intensity", [this] { click("m_ignoreButton"); },
            { u"Desk lamp.intensity: ignored"_s });
        add("default", "Desk lamp.intensity", [this] { click("m_defaultButton"); },
            { u"Desk lamp.intensity: default"_s });
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
        QCoreApplication::processEvents();
        QCOMPARE(texts(), steps);
        const QString after = m_inspector->text(place);
        for (int i = 0; i < steps.size(); ++i)
            m_stack->undo();
        QCOMPARE(m_inspector->text(place), before);
        QVERIFY(!m_inspector->window.document().isModified());
        m_stack->setIndex(m_stack->count());
        QCOMPARE(m_inspector->text(place), after);
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
    void click(const char* button)
    {
        QTest::mouseClick(find<QPushButton>(QString::fromLatin1(button)), Qt::LeftButton);
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
};

QTEST_MAIN(TestUndoSteps)
#include "test_undo_steps.moc"
