// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvServices.h"
#include "CrvStrings.h"
#include "KnField.h"
#include "KnGroup.h"

#include <QStringList>

#include <vector>

/// A scene, a line a node: `Type name: field=text; field=text`, with the children of a group two
/// blanks further in. `Square` stands for the coordinates and the face of a square from -1 to 1.
class SceneLines {
public:
    explicit SceneLines(const char* lines)
    {
        CrvServices::getInstance(); // registers the types
        root = KnNodePtr(new KnGroup);
        root->setName("root");
        std::vector<KnGroup*> open { static_cast<KnGroup*>(root.get()) };
        const QStringList all = QString::fromUtf8(lines).split(u'\n', Qt::SkipEmptyParts);
        for (const QString& line : all) {
            const QString text = line.trimmed();
            open.resize(std::size_t(1 + (line.size() - text.size()) / 2));
            if (text.startsWith(u"Square")) {
                add(*open.back(),
                    QStringLiteral("Coordinates: point=[-1 -1 0, 1 -1 0, 1 1 0, -1 1 0]"));
                add(*open.back(),
                    QStringLiteral("IndexedFaceSet%1: coordIndex=[0, 1, 2, 3, -1]")
                        .arg(text.mid(6)));
            } else if (auto* const group = dynamic_cast<KnGroup*>(add(*open.back(), text))) {
                open.push_back(group);
            }
        }
    }

    KnFieldContainer* node(const QString& name) const
    {
        for (KnFieldContainer* const each : nodes) {
            if (toQString(each->getName()) == name)
                return each;
        }
        qFatal("no node %s", qPrintable(name));
    }
    /// By "node.field".
    KnField* field(const QString& place) const
    {
        return node(place.section(u'.', 0, 0))
            ->getField(KbName(place.section(u'.', 1).toUtf8().constData()));
    }
    /// All fields of all nodes.
    std::vector<KnField*> fields() const
    {
        std::vector<KnField*> all;
        for (KnFieldContainer* const each : nodes) {
            for (int i = 0; i < each->getContainerFieldData()->getNum(); ++i)
                all.push_back(each->getContainerFieldData()->getField(each, i));
        }
        return all;
    }

    /// Makes a node of a line, as a child of the group.
    KnFieldContainer* add(KnGroup& group, const QString& line)
    {
        const QStringList words = line.section(u':', 0, 0).split(u' ');
        auto* const made = dynamic_cast<KnFieldContainer*>(
            KnType::fromName(words.constFirst().toUtf8().constData()).createInstance());
        made->setName(words.value(1).toUtf8().constData());
        group.addChild(made);
        nodes.push_back(made);
        const QStringList texts = line.section(u':', 1).split(u';', Qt::SkipEmptyParts);
        for (const QString& text : texts) {
            const QByteArray name = text.section(u'=', 0, 0).trimmed().toUtf8();
            if (!made->getField(name.constData())->set(toKbString(text.section(u'=', 1))))
                qFatal("%s", qPrintable(line));
        }
        return made;
    }

    KnNodePtr root;
    std::vector<KnFieldContainer*> nodes; // all but the root, which holds them
};
