// SPDX-License-Identifier: BSD-3-Clause
#include "CrvSensorPump.h"
#include "CrvServices.h"
#include "KnFieldSensor.h"
#include "KnMaterial.h"
#include "KnSensorQueue.h"
#include "RecordingPlugin.h"

#include <QApplication>
#include <QRegularExpression>
#include <QTest>
#include <QUndoStack>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// A node that the test holds.
struct Node {
    explicit Node(const char* name)
        : material(new KnMaterial)
    {
        material->ref();
        material->setName(KbName(name));
    }
    ~Node() { material->unref(); }
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;

    KnMaterial* const material;
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

/// Counts the events that the application sees of a kind of its own making.
class EventCounter : public QObject {
public:
    int events = 0;
    bool eventFilter(QObject*, QEvent* event) override
    {
        events += event->type() >= QEvent::User ? 1 : 0;
        return false;
    }
};

void failOnWarnings() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }

} // namespace

class ServicesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QCOMPARE(m_services, CrvServices::getInstance());
        const auto name = [](KnFieldContainer* node) {
            return node ? node->getName().getString().toUtf8() : std::string("none");
        };
        connect(m_services, &CrvServices::selectedNodeChanged, this,
            [name](KnFieldContainer* node) { note("node " + name(node)); });
        connect(m_services, &CrvServices::selectedFieldChanged, this, [name](KnField* field) {
            note(field ? "field of " + name(field->getContainer()) : "no field");
        });
    }

    void init() { failOnWarnings(); }
    void cleanup()
    {
        m_services->selectNode(nullptr);
        m_services->getUndoStack()->clear();
        takeCalls();
    }

    void selectionSignals_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("selected");
        QTest::addColumn<QString>("expected");
        const char* const rows[][3] = {
            { "nothing", "A", "node A" },
            { "A", "A", "" },
            { "A", "B", "node B" },
            { "A", "nothing", "node none" },
            { "nothing", "A.x", "node A, field of A" },
            { "A", "A.x", "field of A" },
            { "A.x", "A.x", "" },
            { "A.x", "A.y", "field of A" },
            { "A.x", "A", "no field" },
            { "A.x", "no field", "no field" },
            { "A.x", "B", "no field, node B" },
            { "A.x", "B.x", "no field, node B, field of B" },
            { "A.x", "nothing", "no field, node none" },
            { "A.x", "again", "node A, field of A" },
            { "A", "loose", "node none, field of none" },
            { "loose", "nothing", "no field" },
        };
        for (const auto& [before, selected, expected] : rows) {
            QTest::addRow("%s, then %s", before, selected) << QString::fromLatin1(
                before) << QString::fromLatin1(selected) << QString::fromLatin1(expected);
        }
    }

    void selectionSignals()
    {
        QFETCH(QString, before);
        QFETCH(QString, selected);
        select(before);
        takeCalls();
        select(selected);
        QTEST(takeCalls(), "expected");
    }

    void selectionHoldsNode()
    {
        m_services->selectField(&m_a.material->transparency);
        QObject context;
        int countInSlot = 0;
        connect(m_services, &CrvServices::selectedNodeChanged, &context,
            [&] { countInSlot = m_a.material->getReferenceCount(); });
        m_services->selectNode(m_b.material);
        QCOMPARE(countInSlot, 2); // whoever still shows the former node finds it alive
        QCOMPARE(m_a.material->getReferenceCount(), 1);
        QCOMPARE(m_b.material->getReferenceCount(), 2);
    }

    void laterSelectionWins()
    {
        m_services->selectField(&m_a.material->transparency);
        QObject context;
        connect(m_services, &CrvServices::selectedFieldChanged, &context, [&](KnField* field) {
            if (!field)
                m_services->selectField(&m_b.material->ambientColor);
        });
        takeCalls();
        m_services->selectNode(nullptr);
        QCOMPARE(takeCalls(), u"no field, node B, field of B"_s);
        QCOMPARE(m_services->getSelectedField(), &m_b.material->ambientColor);
        QCOMPARE(m_a.material->getReferenceCount(), 1);
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
        const auto textFor = [&](KnField* field) {
            m_services->selectField(field);
            m_services->executeCommand(new NotingCommand);
            return m_services->getUndoStack()->undoText();
        };
        QCOMPARE(textFor(&m_a.material->transparency), u"Edit A.transparency"_s);
        m_b.material->setName(KbName());
        QCOMPARE(textFor(&m_b.material->shininess), u"Edit Material.shininess"_s);
        m_b.material->setName(KbName("two\nlines %2"));
        QCOMPARE(textFor(&m_b.material->ambientColor), u"Edit two lines %2.ambientColor"_s);
        m_b.material->setName(KbName("B"));
        QCOMPARE(textFor(&m_loose), u"Edit"_s);
    }

    void sensorsRunOnceABatch()
    {
        EventCounter counter;
        m_services->findChild<CrvSensorPump*>()->installEventFilter(&counter);
        Watch first(m_a.material->transparency);
        Watch second(m_b.material->transparency);
        for (int i = 0; i < 3; ++i) {
            first.field.setValue(0.5F);
            second.field.setValue(0.5F);
        }
        int runsInMeantime = -1;
        QMetaObject::invokeMethod(
            this, [&] { runsInMeantime = first.runs; }, Qt::QueuedConnection);
        QTRY_COMPARE(first.runs, 1);
        QCOMPARE(second.runs, 1);
        QCOMPARE(runsInMeantime, 0); // what was posted after the write came first
        // Run by hand in between: the event under way serves the next batch too.
        first.field.setValue(0.1F);
        KnSensorQueue::getInstance().process();
        first.field.setValue(0.2F);
        QTRY_COMPARE(first.runs, 3);
        QCoreApplication::processEvents();
        QCOMPARE(counter.events, 2);
    }

    void writeInCallbackRunsAgain()
    {
        Watch watch(m_a.material->transparency);
        watch.writes = 2;
        watch.field.setValue(1);
        QTRY_COMPARE(watch.runs, 3);
        QCoreApplication::processEvents();
        QCOMPARE(watch.runs, 3);
    }

    void foreignThreadDoesNotWake()
    {
        Watch watch(m_a.material->transparency);
        QTest::ignoreMessage(
            QtCriticalMsg, "A watched field was written outside the user interface thread");
        std::thread([&] { watch.field.setValue(1); }).join();
        QCoreApplication::processEvents();
        QCOMPARE(watch.runs, 0);
    }

private:
    void select(const QString& what)
    {
        KnMaterial* const node = (what.startsWith(u'A') ? m_a : m_b).material;
        if (what == u"again")
            m_services->announceSelection();
        else if (what == u"loose")
            m_services->selectField(&m_loose);
        else if (what == u"no field")
            m_services->selectField(nullptr);
        else if (what.contains(u'.'))
            m_services->selectField(what.endsWith(u'x') ? static_cast<KnField*>(&node->transparency)
                                                        : &node->ambientColor);
        else
            m_services->selectNode(what == u"nothing" ? nullptr : node);
    }

    CrvServices* const m_services = CrvServices::getInstance(); // before the application object
    Node m_a { "A" };
    Node m_b { "B" };
    KnSFFloat m_loose;
};

/// The services of a second application object, in the same process.
class SecondLifeTest : public QObject {
    Q_OBJECT
public:
    Node selectedBefore { "early" };

private Q_SLOTS:
    void init() { failOnWarnings(); }
    void startsAfresh()
    {
        // The former object has gone with its application object and has let go of the node.
        QCOMPARE(selectedBefore.material->getReferenceCount(), 1);
        Watch watch(selectedBefore.material->transparency);
        watch.field.setValue(1); // before the services exist
        QCOMPARE(CrvServices::getInstance()->getSelectedNode(), nullptr);
        QTRY_COMPARE(watch.runs, 1);
    }
};

int main(int argc, char** argv)
{
    ServicesTest test;
    SecondLifeTest secondTest;
    int failures = 0;
    {
        QApplication application(argc, argv);
        failures += QTest::qExec(&test, argc, argv);
        CrvServices::getInstance()->selectNode(secondTest.selectedBefore.material);
    }
    QApplication application(argc, argv);
    return failures + QTest::qExec(&secondTest);
}

#include "test_services.moc"
