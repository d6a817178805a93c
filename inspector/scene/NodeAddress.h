// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>
#include <vector>

/// How a node is named by text: `Room/Lamp` is a child of a node Room, `/Room/Lamp` says that Room
/// is the root, and `PointLight[2]` is the third of the nodes that could be meant. A backslash
/// takes the character behind it as it stands; `\n`, `\r` and `\t` are a line end, a carriage
/// return and a tabulator.
struct NodeAddress {
    Q_DECLARE_TR_FUNCTIONS(NodeAddress)
public:
    struct Step {
        QString label; ///< a node's name, or a type
        int index = -1; ///< from 0; -1 if none was given
    };

    /// No value for a text that names nothing, and `error` says why.
    static std::optional<NodeAddress> parse(QStringView text, QString* error);
    /// A label as it is written in an address.
    static QString escaped(const QString& label);
    /// One step as it is written; an index of -1 is left out.
    static QString stepText(const Step& step);
    /// Where `character` first, or last, stands without a backslash in front; -1 if it doesn't.
    static qsizetype indexOf(QStringView text, QChar character);
    static qsizetype lastIndexOf(QStringView text, QChar character);

    bool fromRoot = false;
    std::vector<Step> steps; ///< at least one
};
