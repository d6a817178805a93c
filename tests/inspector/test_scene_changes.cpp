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

    void differencesDieWithTheirNode()
    {
        const QSignalSpy spy(m_changes.get(), &SceneChanges::modifiedChanged);
        {
            const KnNodePtr dropped(new KnMaterial);
            m_changes->watch(dropped.get());
            for (const char* field : { "shininess", "transparency" })
                dropped->getField(field)->set("0.75");
            runSensors();
            QVERIFY(m_changes->isModified());
        }
        QCOMPARE(spy.size(), 1); // no word from within a destructor
        runSensors();
        QVERIFY(!m_changes->isModified());
        QCOMPARE(spy.size(), 2);
    }

    void newNodeInTheSamePlaceIsWatched()
    {
        for (const char* value : { "0.5", "0.25" }) { // the second one gets the place of the first
            const KnNodePtr node(new KnMaterial);
            KnField* const field = node->getField("transparency");
            field->set(value);
            m_changes->watch(node.get());
            runSensors();
            QVERIFY(!m_changes->isModified());
            field->set("1");
            runSensors();
            QVERIFY(m_changes->isModified());
            field->set(value);
            runSensors();
            QVERIFY(!m_changes->isModified());
        }
    }

    // The batch goes on behind the node that dies in it.
    void nodeDiesInTheMiddleOfABatch()
    {
        KnNodePtr first(new KnMaterial);
        KnNodePtr middle(new KnMaterial);
        KnNodePtr last(new KnMaterial);
        for (const KnNodePtr* node : { &first, &middle, &last })
            m_changes->watch(node->get());
        // What the first node's change sets off drops the node behind it, whose sensors wait.
        KnFieldSensor killer(
            [](void* data, KnSensor*) { *static_cast<KnNodePtr*>(data) = KnNodePtr(); }, &middle);
        killer.attach(first->getField("transparency"));
        for (const char* field : { "shininess", "transparency" }) {
            for (const KnNodePtr* node : { &first, &middle, &last })
                (*node)->getField(field)->set("0.75");
        }
        runSensors();
        QVERIFY(!middle);
        for (KnNodePtr* node : { &first, &last }) {
            QVERIFY(m_changes->isModified());
            *node = KnNodePtr();
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
