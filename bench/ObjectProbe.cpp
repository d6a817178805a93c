// SPDX-License-Identifier: BSD-3-Clause
// Preloaded into a program: waits for its windows, looks at all of its objects as the inspector
// would, writes what that took, and ends the program.
#include "CrvObjects.h"
#include "KnDatabase.h"
#include "KnField.h"
#include "KnGroup.h"
#include "LooseObjects.h"
#include "OwnObjects.h"
#include "ProbedFigures.h"
#include "ProgramRoots.h"
#include "ProgramStart.h"
#include "Timing.h"

#include <QCoreApplication>
#include <QMetaProperty>
#include <QVariant>

#include <cstdlib>
#include <fstream>

namespace {

/// The tops of the tree that the inspector would show.
class Tops {
public:
    Tops()
        : m_loose(new LooseObjects)
        , m_held(m_loose)
    {
        m_loose->update(ObjectRegister::Look::All);
    }
    ~Tops() = default;
    Q_DISABLE_COPY_MOVE(Tops)

    std::vector<KnNodePtr> nodes() const { return rootNodes(programRoots({}), m_loose); }

    QObjectList objects() const
    {
        QObjectList objects = programRoots({});
        for (int i = 0; i < m_loose->getNumChildren(); ++i)
            objects += crvNodeObject(m_loose->getChild(i));
        return objects;
    }

private:
    LooseObjects* const m_loose; // m_held owns it
    const KnNodePtr m_held;
};

/// The rival: the bare values. Returns how many.
int readProperties(const QObject& object)
{
    const QMetaObject* const type = object.metaObject();
    const QList<QByteArray> dynamic = object.dynamicPropertyNames();
    for (int i = 0; i < type->propertyCount(); ++i)
        type->property(i).read(&object);
    for (const QByteArray& name : dynamic)
        object.property(name.constData());
    int count = type->propertyCount() + static_cast<int>(dynamic.size());
    for (const QObject* const child : object.children())
        count += readProperties(*child);
    return count;
}

int readProperties(const QObjectList& tops)
{
    int count = 0;
    for (const QObject* const top : tops)
        count += readProperties(*top);
    return count;
}

/// What the list of fields asks for.
int readTexts(KnFieldContainer& node)
{
    const KnFieldData* const table = node.getContainerFieldData();
    for (int i = 0; i < table->getNum(); ++i) {
        KbString text;
        table->getField(&node, i)->get(text);
    }
    return table->getNum();
}

void open(KnFieldContainer& node, ProbedFigures& figures)
{
    OpenedObject opened;
    opened.time = milliseconds([&] { opened.fields = readTexts(node); });
    if (const QObject* const object = crvNodeObject(&node)) {
        ++figures.objects;
        figures.fields += opened.fields;
        opened.className = object->metaObject()->className();
        if (opened.fields > figures.largest.fields)
            figures.largest = opened;
        if (opened.time > figures.slowest.time)
            figures.slowest = opened;
    }
    const auto& group = static_cast<const KnGroup&>(node);
    for (int i = 0; i < group.getNumChildren(); ++i)
        open(*group.getChild(i), figures);
}

/// Opens all objects by fresh nodes; returns the milliseconds.
double openAll(ProbedFigures& figures)
{
    const Tops tops;
    std::vector<KnNodePtr> nodes; // go when the clock has stopped
    return milliseconds([&] {
        nodes = tops.nodes();
        for (const KnNodePtr& node : nodes)
            open(*node.get(), figures);
    });
}

void measure()
{
    ProbedFigures figures;
    {
        const Tops tops;
        const QObjectList objects = tops.objects();
        // What getters do at their first call is nobody's cost here.
        readProperties(objects);
        figures.bare = milliseconds([&] { figures.properties = readProperties(objects); });
    }
    figures.first = openAll(figures);
    ProbedFigures seenBefore;
    figures.again = openAll(seenBefore);
    std::ofstream(std::getenv(probedFile)) << figures;
    std::_Exit(0); // without the program's questions
}

void waitForProgram()
{
    auto* const start = new ProgramStart(std::nullopt);
    QObject::connect(start, &ProgramStart::settled, start, &measure);
}

void applicationMade()
{
    KnDatabase::init();
    QMetaObject::invokeMethod(QCoreApplication::instance(), &waitForProgram, Qt::QueuedConnection);
}

[[gnu::constructor]] void libraryLoaded() { ObjectRegister::start(); }

} // namespace

Q_COREAPP_STARTUP_FUNCTION(applicationMade)
