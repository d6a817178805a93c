// SPDX-License-Identifier: BSD-3-Clause
#include "CrvSensorPump.h"
#include "CrvServices.h"
#include "KnFieldSensor.h"
#include "KnMaterial.h"
#include "KnSensorQueue.h"
#include "RecordingPlugin.h"

#include <QRegularExpression>
#include <QTest>
#include <QUndoStack>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// A node that the test holds.
struct Node {
    explicit Node(const char* name)
    {
        material->ref();
        material->setName(KbName(name));
    }
    ~Node() { material->unref(); }
    Q_DISABLE_COPY_MOVE(Node)

    KnMaterial* const material = new KnMaterial;
    KnSFFloat& number = material->transparency;
    KnSFColor& color = material->ambientColor;
};

/// Counts the runs of a sensor on a field, and can write the field from within.
struct Watch {
    explicit Watch(KnSFFloat& watched)
        : field(watched)
    {
        sensor.attach(&watched);
    }

    static void changed(void* data, KnSensor*)
    {
        auto* watch = static_cast<Watch*>(data);
        ++watch->runs;
        if (watch->writes-- > 0)
            watch->field.setValue(watch->field.getValue() + 1);
    }

    KnSFFloat& field;
    KnFieldSensor sensor { &Watch::changed, this };
    int runs = 0;
    int writes = 0;
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
        const auto name = [](KnFieldContainer* node) {
            return node ? node->getName().getString().toUtf8() : std::string("none");
        };
        connect(m_services, &CrvServices::selectedNodeChanged, m_services,
            [name](KnFieldContainer* node) { note("node " + name(node)); });
        connect(m_services, &CrvServices::selectedFieldChanged, m_services, [name](KnField* field) {
            note(field ? "field of " + name(field->getContainer()) : "no field");
        });
    }
    void cleanup()
    {
        m_application.reset();
        QCOMPARE(m_a.material->getReferenceCount(), 1); // which the services have let go
    }

    void selectionSignals()
    {
        m_services->selectNode(m_a.material);
        m_services->selectNode(m_a.material);
        m_services->selectNode(m_b.material);
        m_services->selectNode(nullptr);
        QCOMPARE(takeCalls(), u"node A, node B, node none"_s);
        m_services->selectField(&m_a.number);
        m_services->selectField(&m_a.number);
        m_services->selectField(&m_a.color);
        m_services->selectNode(m_a.material);
        QCOMPARE(takeCalls(), u"node A, field of A, field of A, no field"_s);
        m_services->selectField(&m_a.color);
        m_services->selectField(&m_b.number);
        m_services->announceSelection();
        m_services->selectField(nullptr);
        QCOMPARE(takeCalls(),
            u"field of A, no field, node B, field of B, node B, field of B, no field"_s);
        m_services->selectField(&m_b.number);
        m_services->selectNode(m_a.material);
        m_services->selectField(&m_loose);
        m_services->selectNode(nullptr);
        QCOMPARE(
            takeCalls(), u"field of B, no field, node A, node none, field of none, no field"_s);
    }

    void laterSelectionWins()
    {
        m_services->selectField(&m_a.number);
        QObject context;
        connect(m_services, &CrvServices::selectedFieldChanged, &context, [&](KnField* field) {
            if (!field)
                m_services->selectField(&m_b.color);
        });
        int countInSlot = 0;
        connect(m_services, &CrvServices::selectedNodeChanged, &context,
            [&] { countInSlot = m_a.material->getReferenceCount(); });
        takeCalls();
        m_services->selectNode(nullptr);
        QCOMPARE(takeCalls(), u"no field, node B, field of B"_s);
        QCOMPARE(m_services->getSelectedField(), &m_b.color);
        QCOMPARE(countInSlot, 2); // whoever still shows the former node finds it alive
        QCOMPARE(m_a.material->getReferenceCount(), 1);
        QCOMPARE(m_b.material->getReferenceCount(), 2);
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
        m_services->executeCommand(nullptr);
        QCOMPARE(stack->count(), 2);
        stack->clear();
        QCOMPARE(takeCalls(),
            u"execute, undo, redo, undo, execute, destroy, execute, destroy, destroy"_s);
    }

    void commandText()
    {
        Node unnamed("");
        Node twoLines("two\nlines %2");
        const std::pair<KnField*, QString> rows[] = {
            { &m_a.number, u"Edit A.transparency"_s },
            { &unnamed.number, u"Edit Material.transparency"_s },
            { &twoLines.color, u"Edit two lines %2.ambientColor"_s },
            { &m_loose, u"Edit"_s },
        };
        for (const auto& [field, text] : rows) {
            m_services->selectField(field);
            m_services->executeCommand(new NotingCommand);
            QCOMPARE(m_services->getUndoStack()->undoText(), text);
        }

        // An editor that is still being left commits for the field that it shows.
        m_services->selectField(&m_a.number);
        QObject context;
        connect(
            m_services, &CrvServices::selectedFieldChanged, &context,
            [this] { m_services->executeCommand(new NotingCommand); }, Qt::SingleShotConnection);
        m_services->selectField(&m_a.color);
        QCOMPARE(m_services->getUndoStack()->undoText(), u"Edit A.transparency"_s);
    }

    void sensorsRunOnceABatch()
    {
        m_services->findChild<CrvSensorPump*>()->installEventFilter(this);
        Watch first(m_a.number);
        Watch second(m_b.number);
        second.writes = 2; // from within, each of which is a batch of its own
        for (int i = 0; i < 3; ++i) {
            first.field.setValue(0.5F);
            second.field.setValue(0.5F);
        }
        int runsInMeantime = -1;
        QMetaObject::invokeMethod(
            this, [&] { runsInMeantime = first.runs; }, Qt::QueuedConnection);
        QTRY_COMPARE(second.runs, 3);
        QCOMPARE(first.runs, 1);
        QCOMPARE(runsInMeantime, 0); // what was posted after the write came first
        // Run by hand in between: the event under way serves the next batch too.
        first.field.setValue(0.1F);
        KnSensorQueue::getInstance().process();
        first.field.setValue(0.2F);
        QTRY_COMPARE(first.runs, 3);
        QTest::ignoreMessage(
            QtCriticalMsg, "A watched field was written outside the user interface thread");
        std::thread([&] { first.field.setValue(1); }).join();
        QCoreApplication::processEvents();
        QCOMPARE(first.runs, 3);
        QCOMPARE(m_events, 4);
    }

    void servicesStartAfreshWithTheApplication()
    {
        m_services->selectNode(m_a.material);
        m_application.reset();
        Watch watch(m_a.number);
        watch.field.setValue(1); // before the services exist
        m_application = std::make_unique<QCoreApplication>(m_argumentCount, nullptr);
        QCOMPARE(CrvServices::getInstance()->getSelectedNode(), nullptr);
        QTRY_COMPARE(watch.runs, 1);
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
    KnSFFloat m_loose;
    int m_events = 0;
};

QTEST_APPLESS_MAIN(ServicesTest)
#include "test_services.moc"
