// SPDX-License-Identifier: BSD-3-Clause
#include "CrvSensorPump.h"
#include "CrvServices.h"
#include "CrvUndoSteps.h"
#include "KnDebugError.h"
#include "KnFieldSensor.h"
#include "KnMaterial.h"
#include "RecordingPlugin.h"

#include <QRegularExpression>
#include <QTest>
#include <QUndoStack>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// A node that the test holds; its count never falls to 0.
class Node : public KnMaterial {
public:
    explicit Node(const char* name)
    {
        ref();
        setName(KbName(name));
    }
};

/// Sets a number, as an edit does.
class SetNumber : public CrvCommand {
public:
    SetNumber(KnSFFloat& field, float value)
        : m_field(field)
        , m_before(field.getValue())
        , m_after(value)
    {
    }

    void execute() override { m_field.setValue(m_after); }
    void undo() override { m_field.setValue(m_before); }
    void redo() override { execute(); }

private:
    KnSFFloat& m_field;
    const float m_before;
    const float m_after;
};

} // namespace

/// Each test has an application object of its own, and with it services of its own.
class ServicesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".?"_s));
        m_services = CrvServices::getInstance();
        m_application = std::make_unique<QCoreApplication>(m_argumentCount, nullptr);
        QCOMPARE(CrvServices::getInstance(), m_services);
        connect(m_services, &CrvServices::selectedNodeChanged, this, [](KnFieldContainer* node) {
            note(node ? "node " + node->getName().getString().toUtf8() : "no node");
        });
        connect(m_services, &CrvServices::selectedFieldChanged, this, &noteField);
    }
    void cleanup()
    {
        m_application.reset();
        QCOMPARE(m_a.getReferenceCount(), 1); // which the services have let go
    }

    // A class of which nothing here makes an object is found by its name alone.
    void servicesRegisterTheKernelsTypes() { QVERIFY(!KnType::fromName("MFVec4f").isBad()); }

    void selectionSignals()
    {
        for (Node* const node : { &m_a, &m_a, &m_b, static_cast<Node*>(nullptr) })
            m_services->selectNode(node);
        m_services->selectField(&m_number);
        m_services->selectField(&m_number);
        m_services->selectField(&m_a.shininess);
        m_services->selectNode(&m_a);
        QCOMPARE(takeCalls(), u"node A, node B, no node, node A, field, field, no field"_s);
        m_services->selectField(&m_b.transparency);
        m_services->announceSelection();
        m_services->selectField(&m_loose);
        m_services->selectNode(nullptr);
        QCOMPARE(
            takeCalls(), u"node B, field, node B, field, no field, no node, field, no field"_s);
    }

    void oneSelectionAtATime()
    {
        m_services->selectField(&m_number);
        // Both ask for something else whenever nothing is selected; the later one has its way.
        for (const char* const wanted : { "transparency", "shininess" }) {
            connect(m_services, &CrvServices::selectedFieldChanged, this,
                [this, wanted](const KnField* field) {
                    if (field)
                        return;
                    m_services->selectField(m_b.getField(wanted));
                    m_services->selectField(nullptr);
                    m_services->selectField(m_b.getField(wanted));
                    note(m_services->getSelectedField() ? "early" : "as announced");
                });
        }
        // Whoever still shows the former node finds it alive.
        connect(m_services, &CrvServices::selectedNodeChanged, this,
            [&] { note(std::to_string(m_a.getReferenceCount())); });
        takeCalls();
        m_services->selectNode(nullptr);
        QCOMPARE(
            takeCalls(), u"no field, as announced, as announced, no node, 2, node B, 1, field"_s);
        QCOMPARE(m_services->getSelectedField(), &m_b.shininess);
    }

    void heldSelectionsWait()
    {
        {
            const CrvServices::SelectionHold hold(*m_services);
            m_services->selectField(&m_number);
            m_services->announceSelection();
            m_services->selectNode(&m_b);
            const CrvServices::SelectionHold inner(*m_services);
            QCOMPARE(m_services->getSelectedNode(), nullptr);
        }
        QCOMPARE(takeCalls(), u"node B, no field"_s);
    }

    void listenersThatNeverAgreeAreStopped()
    {
        connect(m_services, &CrvServices::selectedNodeChanged, this,
            [this](auto* node) { m_services->selectNode(node == &m_a ? &m_b : &m_a); });
        QTest::ignoreMessage(
            QtWarningMsg, "CrvServices: listeners go on selecting in answer to each other");
        m_services->selectNode(&m_a);
    }

    void commandRunsOnce()
    {
        QUndoStack* const stack = m_services->getUndoStack();
        m_services->executeCommand(new NotingCommand);
        stack->undo();
        stack->redo();
        stack->undo();
        // A new edit drops the one that was undone; two edits stay two steps.
        m_services->executeCommand(new NotingCommand);
        m_services->executeCommand(new NotingCommand);
        QCOMPARE(stack->count(), 2);
        stack->clear();
        QCOMPARE(takeCalls(),
            u"execute, undo, redo, undo, execute, destroy, execute, destroy, destroy"_s);
    }

    void commandText()
    {
        QString texts;
        for (KnSFFloat* field :
            { &m_unnamed.transparency, &m_twoLines.transparency, &m_loose, &m_number }) {
            m_services->selectField(field);
            m_services->executeCommand(new NotingCommand);
            texts += m_services->getUndoStack()->undoText() + u';';
        }
        m_services->selectField(&m_loose);
        m_services->executeCommand(new NotingCommand, m_number); // which isn't the selected one
        texts += m_services->getUndoStack()->undoText() + u';';
        QCOMPARE(texts,
            u"Edit Material.transparency;Edit two lines %2.transparency;Edit;Edit A.transparency;"
            "Edit A.transparency;"_s);
    }

    void groupsAreOneStep_data()
    {
        QTest::addColumn<QList<float>>("values"); // that commands write, one each
        QTest::addColumn<bool>("plain"); // with a command that writes nothing
        QTest::addColumn<QString>("steps");
        QTest::newRow("nothing") << QList<float> {} << false << QString();
        QTest::newRow("what is there already") << QList<float> { 0, 0 } << false << QString();
        QTest::newRow("there and back") << QList<float> { 1, 0 } << false << u"outer"_s;
        QTest::newRow("two") << QList<float> { 1, 2 } << false << u"outer"_s;
        QTest::newRow("one of which nothing is known") << QList<float> { 0 } << true << u"outer"_s;
    }
    void groupsAreOneStep()
    {
        QFETCH(const QList<float>, values);
        QFETCH(const bool, plain);
        QFETCH(const QString, steps);
        QUndoStack* const stack = m_services->getUndoStack();
        m_number.setValue(0);
        {
            const CrvServices::StepGroup outer(*m_services, u"outer"_s);
            for (const float value : values) {
                const CrvServices::StepGroup inner(*m_services, u"inner"_s);
                m_services->executeCommand(new SetNumber(m_number, value));
                QCOMPARE(m_number.getValue(), value); // at once
            }
            if (plain)
                m_services->executeCommand(new NotingCommand);
        }
        QCOMPARE(stack->count() > 0 ? stack->text(0) : QString(), steps);
        QVERIFY(stack->count() < 2);
        stack->undo();
        QCOMPARE(m_number.getValue(), 0.0F);
        stack->redo();
        QCOMPARE(m_number.getValue(), values.isEmpty() ? 0.0F : values.last());
        takeCalls();
    }

    /// An edit that is lost is worse than a step too many.
    void gesturesKeepWhatIsUncertain_data()
    {
        QTest::addColumn<bool>("input");
        QTest::addColumn<bool>("first"); // the value is written before the command is handed over
        QTest::addColumn<float>("value");
        QTest::addColumn<QStringList>("steps");
        const QString moved = u"A.transparency: 0 → 2"_s;
        QTest::newRow("edit") << true << true << 2.0F << QStringList { moved };
        QTest::newRow("late edit") << true << false << 2.0F << QStringList { moved };
        QTest::newRow("idle") << true << true << 0.0F << QStringList();
        QTest::newRow("program") << false << false << 2.0F << QStringList { moved };
        QTest::newRow("program wrote before")
            << false << true << 2.0F << QStringList { u"Edit A.transparency"_s };
        QTest::newRow("program, perhaps idle")
            << false << false << 0.0F << QStringList { u"Edit A.transparency"_s };
    }
    void gesturesKeepWhatIsUncertain()
    {
        QFETCH(const bool, input);
        QFETCH(const bool, first);
        QFETCH(const float, value);
        QFETCH(QStringList, steps);
        CrvUndoSteps* const undoSteps = m_services->getUndoSteps();
        QUndoStack* const stack = undoSteps->stack();
        undoSteps->setGrouping(CrvUndoSteps::Grouping::Gestures);
        m_number.setValue(0);
        m_services->selectField(&m_number);
        const int before = undoSteps->executedCommands();
        undoSteps->beginGesture();
        for (int i = 0; i < 2; ++i) {
            if (input)
                undoSteps->beginInput();
            auto command = std::make_unique<SetNumber>(m_number, value);
            if (first)
                m_number.setValue(value);
            m_services->executeCommand(command.release());
            undoSteps->endInput();
        }
        undoSteps->endGesture();
        QCOMPARE(undoSteps->executedCommands() - before, 2);
        // Nobody but a person makes several commands in one go.
        if (!input)
            steps = { steps.first(), u"Edit A.transparency"_s };
        QStringList texts;
        for (int i = 0; i < stack->count(); ++i)
            texts += stack->text(i);
        QCOMPARE(texts, steps);
        stack->setIndex(0);
        QCOMPARE(m_number.getValue(), 0.0F);
        stack->clear();
        takeCalls();
    }

    void sensorsRunOnceABatch()
    {
        m_services->findChild<CrvSensorPump*>()->installEventFilter(this);
        int runs = 0;
        KnFieldSensor first([](void* all, KnSensor*) { ++*static_cast<int*>(all); }, &runs);
        first.attach(&m_number);
        m_number.setValue(0.5F);
        m_number.setValue(0.25F);
        QTRY_COMPARE(m_events, 1);
        QCOMPARE(runs, 1);
        QTest::ignoreMessage(
            QtCriticalMsg, "A watched field was written outside the user interface thread");
        int complaints = 0;
        KnDebugError::setHandlerCallback(
            [](const KnError*, void* all) { ++*static_cast<int*>(all); }, &complaints);
        std::thread([this] { m_number.setValue(1); }).join();
        KnDebugError::setHandlerCallback(nullptr, nullptr);
#ifdef NDEBUG
        QCOMPARE(complaints, 0);
#else
        QCOMPARE(complaints, 1);
#endif
        QCoreApplication::processEvents();
        QCOMPARE(runs, 1);
        QCOMPARE(m_events, 1);
    }

    void sensorsAreHeld_data()
    {
        QTest::addColumn<bool>("paused");
        QTest::newRow("paused") << true;
        QTest::newRow("within the interval") << false;
    }
    /// What a command writes is announced nevertheless.
    void sensorsAreHeld()
    {
        QFETCH(bool, paused);
        QByteArray runs;
        const auto note = [](void* log, KnSensor*) { *static_cast<QByteArray*>(log) += 'n'; };
        const auto noteOther = [](void* log, KnSensor*) { *static_cast<QByteArray*>(log) += 'o'; };
        KnFieldSensor number(note, &runs);
        KnFieldSensor other(noteOther, &runs);
        m_services->selectField(&m_number);
        m_services->setPaused(paused);
        m_services->setRefreshInterval(paused ? 0 : 1000000);
        number.attach(&m_number);
        other.attach(&m_b.transparency);
        m_number.touch();
        QCoreApplication::processEvents();
        runs.clear(); // before the first batch there is no interval
        m_b.transparency.touch();
        m_number.touch();
        QCoreApplication::processEvents();
        QCOMPARE(runs, "");
        m_services->executeCommand(new NotingCommand);
        QCoreApplication::processEvents();
        QCOMPARE(runs, paused ? "n" : "on");
        m_services->setPaused(false);
        QCoreApplication::processEvents();
        QCOMPARE(runs, paused ? "no" : "on");
    }

    void whatCameDuringAPauseIsShownAtItsEnd()
    {
        int runs = 0;
        KnFieldSensor sensor([](void* all, KnSensor*) { ++*static_cast<int*>(all); }, &runs);
        sensor.attach(&m_number);
        m_services->setPaused(true);
        m_number.touch();
        QCoreApplication::processEvents();
        QCOMPARE(runs, 0);
        m_services->setPaused(false);
        QCoreApplication::processEvents();
        QCOMPARE(runs, 1);
    }

    void aPauseShowsAllFieldsThatWereUndoneAtOnce()
    {
        int runs = 0;
        const auto count = [](void* all, KnSensor*) { ++*static_cast<int*>(all); };
        KnFieldSensor first(count, &runs);
        KnFieldSensor second(count, &runs);
        first.attach(&m_number);
        second.attach(&m_b.transparency);
        for (KnField* field : { first.getAttachedField(), second.getAttachedField() }) {
            m_services->selectField(field);
            m_services->executeCommand(new NotingCommand);
        }
        m_services->setPaused(true);
        m_number.touch(); // as the commands would
        m_b.transparency.touch();
        m_services->getUndoStack()->setIndex(0);
        QCoreApplication::processEvents();
        QCOMPARE(runs, 2);
    }

    void aStepKeepsItsNode()
    {
        auto* const node = new Node("short-lived");
        m_services->selectField(&node->transparency);
        m_services->executeCommand(new NotingCommand);
        m_services->selectNode(nullptr);
        node->unref();
        QCOMPARE(node->getReferenceCount(), 2);
        m_services->getUndoStack()->undo();
    }

private:
    /// Counts the events of the pump's own making.
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_events += event->type() >= QEvent::User ? 1 : 0;
        return false;
    }

    int m_argumentCount = 0;
    std::unique_ptr<QCoreApplication> m_application;
    CrvServices* m_services = nullptr; // gone with the application object
    Node m_a { "A" };
    Node m_b { "B" };
    Node m_unnamed { "" };
    Node m_twoLines { "two\nlines %2" };
    KnSFFloat& m_number = m_a.transparency;
    KnSFFloat m_loose;
    int m_events = 0;
};

QTEST_APPLESS_MAIN(ServicesTest)
#include "test_services.moc"
