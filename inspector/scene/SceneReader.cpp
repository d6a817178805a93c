// SPDX-License-Identifier: BSD-3-Clause
#include "SceneReader.h"

#include "KnDatabase.h"
#include "KnField.h"
#include "KnGroup.h"
#include "KnReadErrorCapture.h"
#include "SceneFormat.h"
#include "SceneText.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

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

bool SceneReader::build(const QJsonValue& root)
{
    using namespace SceneFormat;
    m_nodeCount = 0;
    if (!root.isObject())
        return refuse(QString(), tr("not a scene: the outermost value must be an object"));
    const QJsonObject scene = root.toObject();
    if (scene.value(Key::format) != QJsonValue(SceneFormat::name))
        return refuse(Key::format, tr("not a scene: \"%1\" expected").arg(SceneFormat::name));
    if (scene.value(Key::version) != QJsonValue(SceneFormat::version))
        return refuse(Key::version, tr("version %1 expected").arg(SceneFormat::version));
    m_furtherRoots.clear();
    const bool hasRoots = scene.contains(Key::roots);
    if (!checkObject(
            root, QString(), { Key::format, Key::version, hasRoots ? Key::roots : Key::root }))
        return false;
    KnDatabase::init(); // a scene names the types of its nodes
    if (hasRoots)
        return readRoots(scene.value(Key::roots));
    m_root = readNode(scene.value(Key::root), Key::root, 0);
    return bool { m_root };
}

bool SceneReader::readRoots(const QJsonValue& value)
{
    const QString path = SceneFormat::Key::roots;
    if (!checkArray(value, path))
        return false;
    const QJsonArray roots = value.toArray();
    if (roots.isEmpty())
        return refuse(path, tr("at least one root expected"));
    for (qsizetype i = 0; i < roots.size(); ++i) {
        KnNodePtr root = readNode(roots.at(i), elementPath(path, i), 0);
        if (!root)
            return false;
        if (i == 0)
            m_root = std::move(root);
        else
            m_furtherRoots.push_back(std::move(root));
    }
    return true;
}

KnNodePtr SceneReader::readNode(const QJsonValue& value, const QString& path, int depth)
{
    using namespace SceneFormat;
    if (!checkObject(value, path, { Key::type, Key::name, Key::fields, Key::children }))
        return KnNodePtr();
    const QJsonObject object = value.toObject();

    const KnNodePtr node = createNode(object, path);
    if (!node || !readFields(*node.get(), object.value(Key::fields), memberPath(path, Key::fields))
        || !readChildren(
            *node.get(), object.value(Key::children), memberPath(path, Key::children), depth))
        return KnNodePtr();
    ++m_nodeCount;
    return node;
}

KnNodePtr SceneReader::createNode(const QJsonObject& object, const QString& path)
{
    using namespace SceneFormat;
    const QString typePath = memberPath(path, Key::type);
    const QJsonValue typeValue = object.value(Key::type);
    if (!checkString(typeValue, typePath))
        return KnNodePtr();
    const KnType type = KnType::fromName(KbName(toKbString(typeValue.toString())));
    if (!type.isDerivedFrom(KnFieldContainer::getClassTypeId()) || !type.canCreateInstance()) {
        refuse(typePath, tr("unknown node type \"%1\"").arg(typeValue.toString()));
        return KnNodePtr();
    }
    const QJsonValue nodeName = object.value(Key::name);
    if (!nodeName.isUndefined() && !checkString(nodeName, memberPath(path, Key::name)))
        return KnNodePtr();

    KnNodePtr node(static_cast<KnFieldContainer*>(type.createInstance()));
    node->setName(KbName(toKbString(nodeName.toString())));
    return node;
}

bool SceneReader::readFields(KnFieldContainer& node, const QJsonValue& value, const QString& path)
{
    if (value.isUndefined())
        return true;
    if (!checkObject(value, path))
        return false;
    const QJsonObject fields = value.toObject();
    for (auto it = fields.begin(); it != fields.end(); ++it) {
        const QString fieldPath = memberPath(path, it.key());
        KnField* const field = node.getField(KbName(toKbString(it.key())));
        if (!field) {
            return refuse(fieldPath,
                tr("a node of type \"%1\" has no such field").arg(typeName(node.getObjectType())));
        }
        if (!readField(*field, it.value(), fieldPath))
            return false;
    }
    return true;
}

bool SceneReader::readField(KnField& field, const QJsonValue& value, const QString& path)
{
    using namespace SceneFormat;
    QJsonValue text = value;
    if (value.isObject()) {
        if (!checkObject(value, path, { Key::value, Key::ignored }))
            return false;
        const QJsonObject object = value.toObject();
        const QJsonValue ignored = object.value(Key::ignored);
        if (!ignored.isUndefined() && !ignored.isBool())
            return refuse(memberPath(path, Key::ignored), tr("true or false expected"));
        field.setIgnored(ignored.toBool() ? 1 : 0);
        text = object.value(Key::value);
        if (text.isUndefined())
            return true;
    }
    if (!checkString(text, path))
        return false;

    const KnReadErrorCapture capture;
    if (!field.set(toKbString(text.toString())))
        return refuse(
            path, capture.getText().isEmpty() ? tr("refused text") : toQString(capture.getText()));
    return true;
}

bool SceneReader::readChildren(
    KnFieldContainer& node, const QJsonValue& value, const QString& path, int depth)
{
    if (value.isUndefined())
        return true;
    if (!checkArray(value, path))
        return false;
    auto* const group = dynamic_cast<KnGroup*>(&node);
    if (!group) {
        return refuse(
            path, tr("a node of type \"%1\" has no children").arg(typeName(node.getObjectType())));
    }
    if (depth >= SceneFormat::maxDepth)
        return refuse(path, tr("more than %1 levels of children").arg(SceneFormat::maxDepth));
    const QJsonArray children = value.toArray();
    for (qsizetype i = 0; i < children.size(); ++i) {
        const KnNodePtr child = readNode(children.at(i), elementPath(path, i), depth + 1);
        if (!child)
            return false;
        group->addChild(child.get());
    }
    return true;
}
