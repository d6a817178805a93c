// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "NodePtr.h"

#include <QCoreApplication>
#include <QString>

class KnField;
class KnGroup;
class QByteArray;
class QJsonObject;
class QJsonValue;

/// Reads a scene file: JSON with one node at the root, each node with its type, name, fields in the
/// kernel's text form, and children. A bad file is refused as a whole.
class SceneReader {
    Q_DECLARE_TR_FUNCTIONS(SceneReader)
public:
    /// The root of the new graph, which nothing else refers to. Null for a refused file.
    NodePtr readFile(const QString& fileName);
    /// The same for the content of a file; `fileName` only stands in messages.
    NodePtr readText(const QByteArray& json, const QString& fileName);

    /// Why the file was refused: file, line and column or the path of the JSON value, and reason.
    const QString& errorText() const { return m_error; }
    /// Nodes in the graph that was read last.
    int nodeCount() const { return m_nodeCount; }

private:
    NodePtr readScene(const QJsonObject& scene);
    NodePtr readNode(const QJsonValue& value, const QString& path, int depth);
    bool readFields(KnFieldContainer& node, const QJsonValue& value, const QString& path);
    bool readField(KnField& field, const QJsonValue& value, const QString& path);
    bool readChildren(
        KnFieldContainer& node, const QJsonValue& value, const QString& path, int depth);
    NodePtr createNode(const QJsonObject& object, const QString& path);

    bool checkMembers(const QJsonObject& object, const QString& path, const QStringList& known);
    bool checkString(const QJsonValue& value, const QString& path);
    /// Keeps the first refusal; gives false.
    bool refuse(const QString& place, const QString& reason);

    QString m_fileName;
    QString m_error;
    int m_nodeCount = 0;
};
