// SPDX-License-Identifier: BSD-3-Clause
#include "SceneWriter.h"

#include "JsonText.h"
#include "KnField.h"
#include "KnGroup.h"
#include "SceneFormat.h"
#include "SceneText.h"

#include <QSaveFile>

namespace {

void appendKey(QByteArray& json, QStringView key)
{
    appendJsonString(json, key);
    json.append(": ");
}

void appendKey(QByteArray& json, QLatin1String key) { appendKey(json, QStringView(QString(key))); }

void appendField(QByteArray& json, const KbString& text, bool ignored)
{
    using namespace SceneFormat;
    if (!ignored) {
        appendJsonString(json, toQString(text));
        return;
    }
    json.append("{ ");
    appendKey(json, Key::value);
    appendJsonString(json, toQString(text));
    json.append(", ");
    appendKey(json, Key::ignored);
    json.append("true }");
}

} // namespace

bool SceneWriter::writeFile(const KnFieldContainer& root, const QString& fileName)
{
    return writeFile(toJson(root), fileName);
}

bool SceneWriter::writeFile(const std::vector<KnNodePtr>& roots, const QString& fileName)
{
    return writeFile(toJson(roots), fileName);
}

bool SceneWriter::writeFile(const QByteArray& json, const QString& fileName)
{
    m_error.clear();
    QSaveFile file(fileName);
    if (file.open(QIODevice::WriteOnly) && file.write(json) == json.size() && file.commit())
        return true;
    m_error = QStringLiteral("%1: %2").arg(fileName, file.errorString());
    return false;
}

QByteArray SceneWriter::toJson(const KnFieldContainer& root)
{
    beginScene();
    indent(1);
    appendKey(m_json, SceneFormat::Key::root);
    writeNode(root, 1);
    return endScene();
}

QByteArray SceneWriter::toJson(const std::vector<KnNodePtr>& roots)
{
    // As other versions of this program read it, too.
    if (roots.size() == 1)
        return toJson(*roots.front().get());
    beginScene();
    indent(1);
    appendKey(m_json, SceneFormat::Key::roots);
    m_json.append('[');
    for (std::size_t i = 0; i < roots.size(); ++i) {
        m_json.append(i > 0 ? ",\n" : "\n");
        indent(2);
        writeNode(*roots[i].get(), 2);
    }
    m_json.append('\n');
    indent(1);
    m_json.append(']');
    return endScene();
}

void SceneWriter::beginScene()
{
    using namespace SceneFormat;
    m_json = QByteArray("{\n");
    indent(1);
    appendKey(m_json, Key::format);
    appendJsonString(m_json, QString(SceneFormat::name));
    m_json.append(",\n");
    indent(1);
    appendKey(m_json, Key::version);
    m_json.append(QByteArray::number(SceneFormat::version)).append(",\n");
}

QByteArray SceneWriter::endScene()
{
    m_json.append("\n}\n");
    return std::exchange(m_json, QByteArray());
}

void SceneWriter::writeNode(const KnFieldContainer& node, int level)
{
    using namespace SceneFormat;
    m_json.append("{\n");
    indent(level + 1);
    appendKey(m_json, Key::type);
    appendJsonString(m_json, typeName(node.getObjectType()));
    if (!node.getName().isEmpty()) {
        m_json.append(",\n");
        indent(level + 1);
        appendKey(m_json, Key::name);
        appendJsonString(m_json, toQString(node.getName().getString()));
    }
    writeFields(node, level + 1);
    writeChildren(node, level + 1);
    m_json.append('\n');
    indent(level);
    m_json.append('}');
}

void SceneWriter::writeFields(const KnFieldContainer& node, int level)
{
    const KnFieldData* const data = node.getContainerFieldData();
    const KnFieldContainer& defaults = *m_defaults.nodeLike(node);
    KbString text;
    KbString defaultText;
    bool first = true;
    for (int i = 0; i < data->getNum(); ++i) {
        const KnField* const field = data->getField(&node, i);
        field->get(text);
        data->getField(&defaults, i)->get(defaultText);
        if (text == defaultText && !field->isIgnored())
            continue;
        if (first) {
            m_json.append(",\n");
            indent(level);
            appendKey(m_json, SceneFormat::Key::fields);
            m_json.append("{\n");
        } else {
            m_json.append(",\n");
        }
        first = false;
        indent(level + 1);
        appendKey(m_json, toQString(data->getName(i).getString()));
        appendField(m_json, text, field->isIgnored() != 0);
    }
    if (!first) {
        m_json.append('\n');
        indent(level);
        m_json.append('}');
    }
}

void SceneWriter::writeChildren(const KnFieldContainer& node, int level)
{
    const auto* const group = dynamic_cast<const KnGroup*>(&node);
    if (!group || group->getNumChildren() == 0)
        return;
    m_json.append(",\n");
    indent(level);
    appendKey(m_json, SceneFormat::Key::children);
    m_json.append("[\n");
    for (int i = 0; i < group->getNumChildren(); ++i) {
        if (i > 0)
            m_json.append(",\n");
        indent(level + 1);
        writeNode(*group->getChild(i), level + 1);
    }
    m_json.append('\n');
    indent(level);
    m_json.append(']');
}
