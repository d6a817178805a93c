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
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>

namespace {

QString memberPath(const QString& path, const QString& member)
{
    return path.isEmpty() ? member : path + QLatin1Char('.') + member;
}

// Line and column from 1; the column counts bytes. Qt's offset stands behind the byte at fault.
QString lineAndColumn(const QByteArray& text, qsizetype offset)
{
    const QByteArrayView before
        = QByteArrayView(text).first(std::clamp<qsizetype>(offset - 1, 0, text.size()));
    const qsizetype column = before.size() - before.lastIndexOf('\n');
    return QStringLiteral("%1:%2").arg(before.count('\n') + 1).arg(column);
}

} // namespace

NodePtr SceneReader::readFile(const QString& fileName)
{
    m_fileName = fileName;
    m_error.clear();
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        refuse(QString(), file.errorString());
        return NodePtr();
    }
    const QByteArray json = file.readAll();
    // A directory opens on some systems and fails here.
    if (file.error() != QFileDevice::NoError) {
        refuse(QString(), file.errorString());
        return NodePtr();
    }
    return readText(json, fileName);
}

NodePtr SceneReader::readText(const QByteArray& json, const QString& fileName)
{
    m_fileName = fileName;
    m_error.clear();
    m_nodeCount = 0;
    if (json.trimmed().isEmpty()) {
        refuse(QString(), tr("the file is empty"));
        return NodePtr();
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        // As a compiler says it.
        m_fileName += QLatin1Char(':') + lineAndColumn(json, error.offset);
        refuse(QString(), error.errorString());
        return NodePtr();
    }
    if (!document.isObject()) {
        refuse(QString(), tr("not a scene: the outermost value must be an object"));
        return NodePtr();
    }
    return readScene(document.object());
}

NodePtr SceneReader::readScene(const QJsonObject& scene)
{
    using namespace SceneFormat;
    if (scene.value(Key::format) != QJsonValue(SceneFormat::name)) {
        refuse(Key::format, tr("not a scene: \"%1\" expected").arg(SceneFormat::name));
        return NodePtr();
    }
    if (scene.value(Key::version) != QJsonValue(SceneFormat::version)) {
        refuse(Key::version, tr("version %1 expected").arg(SceneFormat::version));
        return NodePtr();
    }
    if (!checkMembers(scene, QString(), { Key::format, Key::version, Key::root }))
        return NodePtr();
    KnDatabase::init(); // a scene names the types of its nodes
    return readNode(scene.value(Key::root), Key::root, 0);
}

NodePtr SceneReader::readNode(const QJsonValue& value, const QString& path, int depth)
{
    using namespace SceneFormat;
    if (!value.isObject()) {
        refuse(path, value.isUndefined() ? tr("missing") : tr("an object expected"));
        return NodePtr();
    }
    const QJsonObject object = value.toObject();
    if (!checkMembers(object, path, { Key::type, Key::name, Key::fields, Key::children }))
        return NodePtr();

    const NodePtr node = createNode(object, path);
    if (!node || !readFields(*node.get(), object.value(Key::fields), memberPath(path, Key::fields))
        || !readChildren(
            *node.get(), object.value(Key::children), memberPath(path, Key::children), depth))
        return NodePtr();
    ++m_nodeCount;
    return node;
}

NodePtr SceneReader::createNode(const QJsonObject& object, const QString& path)
{
    using namespace SceneFormat;
    const QString typePath = memberPath(path, Key::type);
    const QJsonValue typeValue = object.value(Key::type);
    if (!checkString(typeValue, typePath))
        return NodePtr();
    const KnType type = KnType::fromName(KbName(toKbString(typeValue.toString())));
    if (!type.isDerivedFrom(KnFieldContainer::getClassTypeId()) || !type.canCreateInstance()) {
        refuse(typePath, tr("unknown node type \"%1\"").arg(typeValue.toString()));
        return NodePtr();
    }
    const QJsonValue name = object.value(Key::name);
    if (!name.isUndefined() && !checkString(name, memberPath(path, Key::name)))
        return NodePtr();

    NodePtr node(static_cast<KnFieldContainer*>(type.createInstance()));
    node->setName(KbName(toKbString(name.toString())));
    return node;
}

bool SceneReader::readFields(KnFieldContainer& node, const QJsonValue& value, const QString& path)
{
    if (value.isUndefined())
        return true;
    if (!value.isObject())
        return refuse(path, tr("an object expected"));
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
        const QJsonObject object = value.toObject();
        if (!checkMembers(object, path, { Key::value, Key::ignored }))
            return false;
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
    if (!value.isArray())
        return refuse(path, tr("an array expected"));
    auto* const group = dynamic_cast<KnGroup*>(&node);
    if (!group) {
        return refuse(
            path, tr("a node of type \"%1\" has no children").arg(typeName(node.getObjectType())));
    }
    if (depth >= SceneFormat::maxDepth)
        return refuse(path, tr("more than %1 levels of children").arg(SceneFormat::maxDepth));
    const QJsonArray children = value.toArray();
    for (qsizetype i = 0; i < children.size(); ++i) {
        const NodePtr child
            = readNode(children.at(i), QStringLiteral("%1[%2]").arg(path).arg(i), depth + 1);
        if (!child)
            return false;
        group->addChild(child.get());
    }
    return true;
}

// A member that the reader doesn't know is most often misspelled, and the next save would drop it.
bool SceneReader::checkMembers(
    const QJsonObject& object, const QString& path, const QStringList& known)
{
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (!known.contains(it.key()))
            return refuse(memberPath(path, it.key()), tr("unknown member"));
    }
    return true;
}

bool SceneReader::checkString(const QJsonValue& value, const QString& path)
{
    if (value.isString())
        return true;
    return refuse(path, value.isUndefined() ? tr("missing") : tr("a text in quotes expected"));
}

bool SceneReader::refuse(const QString& place, const QString& reason)
{
    if (m_error.isEmpty()) {
        m_error = place.isEmpty() ? QStringLiteral("%1: %2").arg(m_fileName, reason)
                                  : QStringLiteral("%1: %2: %3").arg(m_fileName, place, reason);
    }
    return false;
}
