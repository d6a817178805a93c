// SPDX-License-Identifier: BSD-3-Clause
#include "KnCoordinates.h"
#include "KnMaterial.h"
#include "KnNodePtr.h"
#include "KnSensorQueue.h"
#include "SceneChanges.h"

#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

#include <array>
#include <new>

using namespace Qt::StringLiterals;

namespace {

/// A node in a place of its own, which the next one gets again. Only the destructor is run, as the
/// last `unref` would free the place.
class Place {
    Q_DISABLE_COPY(Place)
public:
    Place() = default;
    ~Place() { clear(); }

    KnMaterial* fill() { return m_node = new (m_bytes.data()) Material; }
    void clear()
    {
        if (m_node)
            std::destroy_at(static_cast<Material*>(std::exchange(m_node, nullptr)));
    }

private:
    struct Material : KnMaterial {
        ~Material() override = default;
    };

    alignas(Material) std::array<std::byte, sizeof(Material)> m_bytes {};
    KnMaterial* m_node = nullptr;
};

void runSensors() { KnSensorQueue::getInstance().process(); }

} // namespace

/// Nodes that were selected once, and that their program then drops.
class TestSceneChanges : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        m_stack = std::make_unique<QUndoStack>();
        m_changes = std::make_unique<SceneChanges>(m_stack.get());
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
        m_changes->forgetNodes();
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
        Place place;
        m_changes->watch(place.fill());
        place.clear();
        KnMaterial* const node = place.fill();
        node->transparency.setValue(0.5F);
        m_changes->watch(node);
        runSensors();
        QVERIFY(!m_changes->isModified());
        node->transparency.setValue(0.25F);
        runSensors();
        QVERIFY(m_changes->isModified());
        node->transparency.setValue(0.5F);
        runSensors();
        QVERIFY(!m_changes->isModified());
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
        first->getField("shininess")->set("0.75");
        middle->getField("shininess")->set("0.75");
        first->getField("transparency")->set("0.75");
        middle->getField("transparency")->set("0.75");
        last->getField("shininess")->set("0.75");
        runSensors();
        QVERIFY(!middle);
        QVERIFY(m_changes->isModified());
        first = KnNodePtr();
        runSensors();
        QVERIFY(m_changes->isModified());
        last = KnNodePtr();
        runSensors();
        QVERIFY(!m_changes->isModified());
    }

private:
    std::unique_ptr<QUndoStack> m_stack;
    std::unique_ptr<SceneChanges> m_changes;
};

QTEST_GUILESS_MAIN(TestSceneChanges)
#include "test_scene_changes.moc"
