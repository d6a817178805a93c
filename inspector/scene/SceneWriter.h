// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldDefaults.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// Writes a scene file, in the form that SceneReader reads. Of each node it writes only what
/// differs from a fresh node of its type. Members stand in the order in which a person reads them,
/// where Qt's own writer would sort them by name, and every text survives, lone surrogates
/// included.
class SceneWriter {
public:
    /// Replaces the file only when all of it has been written. False leaves it as it was, and
    /// `errorText` says why.
    bool writeFile(const KnFieldContainer& root, const QString& fileName);
    QByteArray toJson(const KnFieldContainer& root);
    /// The same for all roots of a scene; none is null, and there is at least one.
    bool writeFile(const std::vector<KnNodePtr>& roots, const QString& fileName);
    QByteArray toJson(const std::vector<KnNodePtr>& roots);

    const QString& errorText() const { return m_error; }

private:
    void beginScene();
    QByteArray endScene();
    bool writeFile(const QByteArray& json, const QString& fileName);
    void writeNode(const KnFieldContainer& node, int level);
    void writeFields(const KnFieldContainer& node, int level);
    void writeChildren(const KnFieldContainer& node, int level);
    void indent(int level) { m_json.append(2 * level, ' '); }

    QByteArray m_json;
    QString m_error;
    FieldDefaults m_defaults;
};
