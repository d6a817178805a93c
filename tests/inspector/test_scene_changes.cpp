// SPDX-License-Identifier: BSD-3-Clause
#include "KnCoordinates.h"
#include "KnMaterial.h"
#include "KnNodePtr.h"
#include "KnSensorQueue.h"
#include "SceneChanges.h"

#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

using namespace Qt::StringLiterals;

namespace {

void runSensors() { KnSensorQueue::getInstance().process(); }

} // namespace

/// Nodes that were selected once, and that their program then drops.
class TestSceneChanges : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        m_changes = std::make_unique<SceneChanges>(&m_stack);
    }

    void deadNodesAreForgotten()
    {
        const KnNodePtr kept(new KnMaterial);
        m_changes->watch(kept.get());
        {
            const KnNodePtr dropped(new KnCoordinates);
            m_changes->watch(dropped.get());
            QCOMPARE(dropped->getReferenceCount(), 1); // nobody else keeps it
        }
        m_changes->markSaved();
        kept->getField("shininess")->setIgnored(1);
        runSensors();
        QVERIFY(m_changes->isModified());
        m_changes->markSaved();
        QVERIFY(!m_changes->isModified());
    }

    /// Too long to be compared, so that the undo stack has to tell.
    void aLongArrayIsModifiedByACommand()
    {
        const KnNodePtr node(new KnCoordinates);
        auto& point = static_cast<KnCoordinates*>(node.get())->point;
        point.setNum(1000);
        m_changes->watch(node.get());
        point.set1Value(500, KbVec3f(1, 2, 3));
        m_stack.push(new QUndoCommand);
        runSensors();
        QVERIFY(m_changes->isModified());
        point.set1Value(500, KbVec3f());
        m_stack.undo();
        runSensors();
        QVERIFY(!m_changes->isModified());
    }

    void differencesDieWithTheirNode()
    {
        const QSignalSpy spy(m_changes.get(), &SceneChanges::modifiedChanged);
        // The second node gets the place of the first, and its value is one of its own.
        for (const char* value : { "0.5", "0.25" }) {
            {
                const KnNodePtr dropped(new KnMaterial);
                dropped->getField("transparency")->set(value);
                m_changes->watch(dropped.get());
                for (const char* now : { value, "1", value, "0.75" }) {
                    dropped->getField("transparency")->set(now);
                    runSensors();
                    QCOMPARE(m_changes->isModified(), now != value);
                }
            }
            QVERIFY(spy.size() % 2 == 1); // no word from within a destructor
            runSensors();
            QVERIFY(!m_changes->isModified());
        }
        QCOMPARE(spy.size(), 8);
    }

    // The batch goes on behind the node that dies in it.
    void nodeDiesInTheMiddleOfABatch()
    {
        KnNodePtr nodes[3];
        // What the first node's change sets off drops the node behind it, whose sensors wait.
        KnFieldSensor killer(
            [](void* data, KnSensor*) { *static_cast<KnNodePtr*>(data) = {}; }, &nodes[1]);
        for (KnNodePtr& node : nodes)
            m_changes->watch((node = KnNodePtr(new KnMaterial)).get());
        killer.attach(nodes[0]->getField("transparency"));
        for (const KnNodePtr& node : nodes)
            node->getField("transparency")->set("0.75");
        runSensors();
        QVERIFY(!nodes[1]);
        for (const int left : { 0, 2 }) {
            QVERIFY(m_changes->isModified());
            nodes[left] = KnNodePtr();
            runSensors();
        }
        QVERIFY(!m_changes->isModified());
    }

private:
    QUndoStack m_stack;
    std::unique_ptr<SceneChanges> m_changes;
};

QTEST_GUILESS_MAIN(TestSceneChanges)
#include "test_scene_changes.moc"
