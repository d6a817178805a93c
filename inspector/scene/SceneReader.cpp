// SPDX-License-Identifier: BSD-3-Clause
#include "SceneReader.h"

#include "KnDatabase.h"
#include "KnField.h"
#include "KnGroup.h"
#include "KnReadErrorCapture.h"
#include "SceneFormat.h"
#include "SceneText.h"

#include <QFile>

#include <utility>

KnNodePtr SceneReader::readFile(const QString& fileName) { return takeRoot(read(fileName)); }

KnNodePtr SceneReader::readText(const QByteArray& json, const QString& fileName)
{
    return takeRoot(readContent(json, fileName));
}

KnNodePtr SceneReader::readStarter()
{
    QFile starter(QStringLiteral(":/corvane/starter.json"));
    [[maybe_unused]] const bool opened = starter.open(QIODevice::ReadOnly);
    Q_ASSERT(opened);
    KnNodePtr root = readText(starter.readAll(), starter.fileName());
    Q_ASSERT_X(root, "SceneReader", qPrintable(errorText()));
    return root;
}

KnNodePtr SceneReader::takeRoot(bool accepted)
{
    const KnNodePtr root = std::exchange(m_root, KnNodePtr());
    return accepted ? root : KnNodePtr();
}

bool SceneReader::build(const CrvJsonValue& root)
{
    using namespace SceneFormat;
    const CrvJsonPlace whole;
    m_nodeCount = 0;
    if (!root.isObject())
        return refuse(whole, tr("not a scene: the outermost value must be an object"));
    if (!root.member(Key::format).equals(SceneFormat::name))
        return refuse(
            whole.member(Key::format), tr("not a scene: \"%1\" expected").arg(SceneFormat::name));
    if (!root.member(Key::version).isNumber(SceneFormat::version))
        return refuse(
            whole.member(Key::version), tr("version %1 expected").arg(SceneFormat::version));
    m_furtherRoots.clear();
    const CrvJsonValue roots = root.member(Key::roots);
    const bool hasRoots = !roots.isUndefined();
    if (!checkObject(root, whole, { Key::format, Key::version, hasRoots ? Key::roots : Key::root }))
        return false;
    KnDatabase::init(); // a scene names the types of its nodes
    if (hasRoots)
        return readRoots(roots, whole.member(Key::roots));
    m_root = readNode(root.member(Key::root), whole.member(Key::root), 0);
    return bool { m_root };
}

bool SceneReader::readRoots(const CrvJsonValue& value, const CrvJsonPlace& place)
{
    if (!checkArray(value, place))
        return false;
    if (value.count() == 0)
        return refuse(place, tr("at least one root expected"));
    int index = 0;
    for (const CrvJsonValue each : value) {
        KnNodePtr root = readNode(each, place.element(index), 0);
        if (!root)
            return false;
        if (index++ == 0)
            m_root = std::move(root);
        else
            m_furtherRoots.push_back(std::move(root));
    }
    return true;
}

KnNodePtr SceneReader::readNode(const CrvJsonValue& value, const CrvJsonPlace& place, int depth)
{
    using namespace SceneFormat;
    if (!checkObject(value, place, { Key::type, Key::name, Key::fields, Key::children }))
        return KnNodePtr();

    KnNodePtr node = createNode(value, place);
    if (!node || !readFields(*node.get(), value.member(Key::fields), place.member(Key::fields))
        || !readChildren(
            *node.get(), value.member(Key::children), place.member(Key::children), depth))
        return KnNodePtr();
    ++m_nodeCount;
    return node;
}

KnNodePtr SceneReader::createNode(const CrvJsonValue& object, const CrvJsonPlace& place)
{
    using namespace SceneFormat;
    const CrvJsonPlace typePlace = place.member(Key::type);
    const CrvJsonValue typeValue = object.member(Key::type);
    if (!checkString(typeValue, typePlace))
        return KnNodePtr();
    const KnType type = KnType::fromName(KbName(typeValue.toKbString()));
    if (!type.isDerivedFrom(KnFieldContainer::getClassTypeId()) || !type.canCreateInstance()) {
        refuse(typePlace, tr("unknown node type \"%1\"").arg(typeValue.toQString()));
        return KnNodePtr();
    }
    const CrvJsonValue nodeName = object.member(Key::name);
    if (!nodeName.isUndefined() && !checkString(nodeName, place.member(Key::name)))
        return KnNodePtr();

    KnNodePtr node(static_cast<KnFieldContainer*>(type.createInstance()));
    node->setName(KbName(nodeName.toKbString()));
    return node;
}

bool SceneReader::readFields(
    KnFieldContainer& node, const CrvJsonValue& value, const CrvJsonPlace& place)
{
    if (value.isUndefined())
        return true;
    if (!checkObject(value, place))
        return false;
    const auto end = value.end();
    for (auto it = value.begin(); it != end; ++it) {
        const CrvJsonPlace fieldPlace = place.member(it.name());
        KnField* const field = node.getField(KbName(it.name().toKbString()));
        if (!field) {
            return refuse(fieldPlace,
                tr("a node of type \"%1\" has no such field").arg(typeName(node.getObjectType())));
        }
        if (!readField(*field, it.value(), fieldPlace))
            return false;
    }
    return true;
}

bool SceneReader::readField(KnField& field, const CrvJsonValue& value, const CrvJsonPlace& place)
{
    using namespace SceneFormat;
    CrvJsonValue text = value;
    if (value.isObject()) {
        if (!checkObject(value, place, { Key::value, Key::ignored }))
            return false;
        const CrvJsonValue ignored = value.member(Key::ignored);
        if (!ignored.isUndefined() && !ignored.isBool())
            return refuse(place.member(Key::ignored), tr("true or false expected"));
        field.setIgnored(ignored.toBool() ? 1 : 0);
        text = value.member(Key::value);
        if (text.isUndefined())
            return true;
    }
    if (!checkString(text, place))
        return false;

    const KnReadErrorCapture capture;
    if (!field.set(text.toKbString()))
        return refuse(
            place, capture.getText().isEmpty() ? tr("refused text") : toQString(capture.getText()));
    return true;
}

bool SceneReader::readChildren(
    KnFieldContainer& node, const CrvJsonValue& value, const CrvJsonPlace& place, int depth)
{
    if (value.isUndefined())
        return true;
    if (!checkArray(value, place))
        return false;
    auto* const group = dynamic_cast<KnGroup*>(&node);
    if (!group) {
        return refuse(
            place, tr("a node of type \"%1\" has no children").arg(typeName(node.getObjectType())));
    }
    if (depth >= SceneFormat::maxDepth)
        return refuse(place, tr("more than %1 levels of children").arg(SceneFormat::maxDepth));
    int index = 0;
    for (const CrvJsonValue each : value) {
        const KnNodePtr child = readNode(each, place.element(index++), depth + 1);
        if (!child)
            return false;
        group->addChild(child.get());
    }
    return true;
}
