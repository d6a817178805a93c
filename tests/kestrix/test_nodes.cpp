// SPDX-License-Identifier: BSD-3-Clause
#include "FieldTypes.h"
#include "KnComplexity.h"
#include "KnDebugError.h"
#include "KnDirectionalLight.h"
#include "KnGroup.h"
#include "KnMField.h"
#include "KnMaterial.h"

#include <QTest>

namespace {

/// Holds a reference on a node.
template <class Node>
struct Held {
    explicit Held(Node* held)
        : node(held)
    {
        node->ref();
    }
    ~Held() { node->unref(); }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;
    Node* operator->() const { return node; }

    Node* node;
};

const QByteArrayList& nodeTypeNames()
{
    static const QByteArrayList names
        = QByteArray("Animation ClipPlane ClipPlanes Complexity Coordinates DirectionalLight"
                     " DrawStyle Drawing Group HomogeneousCoordinates IndexedFaceSet Material"
                     " MatrixTransform Normals PointLight Text Texture TextureCoordinates"
                     " Transform Viewpoint VoxelGrid")
              .split(' ');
    return names;
}

/// Counts the nodes that live.
class CountedNode : public KnNode {
public:
    CountedNode() { ++count; }
    KnType getObjectType() const override { return KnNode::getClassTypeId(); }
    const KnFieldData* getContainerFieldData() const override
    {
        static const KnFieldData none;
        return &none;
    }

    static inline int count = 0;

protected:
    ~CountedNode() override { --count; }
};

} // namespace

class TestNodes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typesFormATree();
    void aTakenNameGetsTheNewFactory();
    void fieldsByIndexAndName_data();
    void fieldsByIndexAndName();
    void nodesShowAllFieldTypes();
    void fieldsOfBaseClassesComeFirst();
    void referencesKeepNodes();
    void children();
    void cyclesAreRefused();
};

void TestNodes::typesFormATree()
{
    const KnType material = KnType::fromName("Material");
    QVERIFY(material == KnMaterial::getClassTypeId());
    QVERIFY(material.getName() == KbName("Material"));
    QVERIFY(material.isDerivedFrom(material));
    QVERIFY(material.isDerivedFrom(KnNode::getClassTypeId()));
    QVERIFY(material.isDerivedFrom(KnFieldContainer::getClassTypeId()));
    QVERIFY(!material.isDerivedFrom(KnComplexity::getClassTypeId()));
    QVERIFY(!KnNode::getClassTypeId().isDerivedFrom(material));
    QVERIFY(KnType::fromName("SFFilePathString").getParent() == KnType::fromName("SFString"));
    QVERIFY(KnType::fromName("SFBitMask").getParent() == KnType::fromName("SFEnum"));
    QVERIFY(KnType::fromName("SFVec3f").isDerivedFrom(KnSField::getClassTypeId()));
    QVERIFY(KnType::fromName("MFVec3f").isDerivedFrom(KnMField::getClassTypeId()));

    const KnType bad = KnType::fromName("Nonsense");
    QVERIFY(bad.isBad());
    QVERIFY(!bad.createInstance());
    QVERIFY(bad.isDerivedFrom(KnType()));
    QVERIFY(!bad.isDerivedFrom(material));
    QVERIFY(!material.isDerivedFrom(KnType()));
    for (const char* abstract : { "Node", "Field", "SField", "MField", "Light", "ReadError" }) {
        QVERIFY(!KnType::fromName(abstract).isBad());
        QVERIFY(!KnType::fromName(abstract).canCreateInstance());
        QVERIFY(!KnType::fromName(abstract).createInstance());
    }
    for (const QByteArray& name : fieldTypeNames())
        QVERIFY(makeField(name)->getObjectType().getName() == KbName(name.constData()));
}

void TestNodes::aTakenNameGetsTheNewFactory()
{
    const KnType::Factory counted = []() -> KnTypedObject* { return new CountedNode; };
    const KnType type = KnType::create("Loaded", KnNode::getClassTypeId());
    QVERIFY(!type.createInstance());
    QVERIFY(KnType::create("Loaded", KnNode::getClassTypeId(), counted) == type);
    const Held node(static_cast<CountedNode*>(type.createInstance()));
    QCOMPARE(CountedNode::count, 1);
}

void TestNodes::fieldsByIndexAndName_data()
{
    QTest::addColumn<QByteArray>("type");
    for (const QByteArray& name : nodeTypeNames())
        QTest::newRow(name.constData()) << name;
}

void TestNodes::fieldsByIndexAndName()
{
    QFETCH(QByteArray, type);
    const auto make
        = [&] { return static_cast<KnNode*>(KnType::fromName(type.constData()).createInstance()); };
    const Held first(make());
    const Held second(make());
    QVERIFY(first->getObjectType().getName() == KbName(type.constData()));
    QCOMPARE(first->getReferenceCount(), 1);
    const KnFieldData* data = first->getContainerFieldData();
    QCOMPARE(second->getContainerFieldData(), data);
    QVERIFY(data->getNum() > 0);
    for (int i = 0; i < data->getNum(); ++i) {
        KnField* field = data->getField(first.node, i);
        KnField* same = data->getField(second.node, i);
        QVERIFY(field != same);
        QVERIFY(field->getObjectType() == same->getObjectType());
        QCOMPARE(field->getContainer(), first.node);
        QCOMPARE(data->getIndex(first.node, field), i);
        QCOMPARE(data->getIndex(data->getName(i)), i);
        QCOMPARE(first->getField(data->getName(i)), field);
        QCOMPARE(data->getIndex(second.node, field), -1);
        QCOMPARE(textOf(*field), textOf(*same));
        // What one node says of its field, the other understands.
        QVERIFY(same->set(textOf(*field).constData()));
    }
    const KnSFFloat stranger;
    QCOMPARE(data->getIndex(first.node, &stranger), -1);
    QCOMPARE(data->getIndex(first.node, nullptr), -1);
    QCOMPARE(data->getIndex(KbName("nonsense")), -1);
    QVERIFY(!first->getField("nonsense"));
    QVERIFY(!data->getField(first.node, -1));
    QVERIFY(!data->getField(first.node, data->getNum()));
    QVERIFY(!data->getField(static_cast<KnFieldContainer*>(nullptr), 0));
}

void TestNodes::nodesShowAllFieldTypes()
{
    QByteArrayList missing = fieldTypeNames();
    for (const QByteArray& name : nodeTypeNames()) {
        const Held node(static_cast<KnNode*>(KnType::fromName(name.constData()).createInstance()));
        const KnFieldData* data = node->getContainerFieldData();
        for (int i = 0; i < data->getNum(); ++i) {
            const KnType type = data->getField(node.node, i)->getObjectType();
            missing.removeAll(QByteArray::fromStdString(type.getName().getString().toUtf8()));
        }
    }
    QCOMPARE(missing, QByteArrayList());
}

void TestNodes::fieldsOfBaseClassesComeFirst()
{
    const Held light(new KnDirectionalLight);
    const KnFieldData* data = light->getContainerFieldData();
    QByteArrayList names;
    for (int i = 0; i < data->getNum(); ++i)
        names += QByteArray::fromStdString(data->getName(i).getString().toUtf8());
    QCOMPARE(names, (QByteArrayList { "on", "intensity", "color", "direction" }));
    QVERIFY(light->isOfType(KnType::fromName("Light")));
}

void TestNodes::referencesKeepNodes()
{
    auto* node = new CountedNode;
    QCOMPARE(node->getReferenceCount(), 0);
    node->ref();
    node->ref();
    node->unref();
    QCOMPARE(CountedNode::count, 1);
    node->unref();
    QCOMPARE(CountedNode::count, 0);
}

void TestNodes::children()
{
    {
        const Held group(new KnGroup);
        auto* a = new CountedNode;
        auto* b = new CountedNode;
        auto* c = new CountedNode;
        QVERIFY(group->addChild(b));
        QVERIFY(group->insertChild(a, -3));
        QVERIFY(group->insertChild(c, 99));
        QVERIFY(group->insertChild(b, 1)); // for the second time
        QCOMPARE(group->getNumChildren(), 4);
        QCOMPARE(group->getChild(0), a);
        QCOMPARE(group->getChild(1), b);
        QCOMPARE(group->getChild(3), c);
        QVERIFY(!group->getChild(-1));
        QVERIFY(!group->getChild(4));
        QCOMPARE(b->getReferenceCount(), 2);
        QVERIFY(group->removeChild(b));
        QCOMPARE(group->findChild(b), 1);
        QVERIFY(group->removeChild(1));
        QCOMPARE(CountedNode::count, 2);
        QVERIFY(!group->removeChild(2));
        QCOMPARE(group->findChild(a), 0);
    }
    QCOMPARE(CountedNode::count, 0);
}

void TestNodes::cyclesAreRefused()
{
    const Held root(new KnGroup);
    auto* middle = new KnGroup;
    auto* leaf = new KnGroup;
    QVERIFY(root->addChild(middle));
    QVERIFY(middle->addChild(leaf));
    QVERIFY(root->addChild(leaf)); // shared, which is no cycle
    int errors = 0;
    KnDebugError::setHandlerCallback(
        [](const KnError*, void* data) { ++*static_cast<int*>(data); }, &errors);
    QVERIFY(!leaf->addChild(root.node));
    QVERIFY(!leaf->addChild(leaf));
    QVERIFY(!leaf->addChild(nullptr));
    KnDebugError::setHandlerCallback(&KnErrorHandler::writeToStandardError, nullptr);
    QCOMPARE(errors, 3);
    QCOMPARE(leaf->getNumChildren(), 0);
    QCOMPARE(root->getReferenceCount(), 1);
}

QTEST_APPLESS_MAIN(TestNodes)
#include "test_nodes.moc"
