// SPDX-License-Identifier: BSD-3-Clause
#include "LooseObjects.h"

#include "CrvObjects.h"
#include "OwnFiles.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>
#include <vector>

#include <dlfcn.h>

namespace {

/// Whether a file holds classes that no program makes objects of by itself: those of Qt's plug-ins
/// and of what these are built on, and the inspector's.
bool isInnerFile(const char* file)
{
    constexpr std::array parts { "/plugins/", "/libQt6XcbQpa", "/libQt6WaylandClient",
        "/libQt6EglFS", "/libQt6DBus" };
    return isOwnFile(file) || std::any_of(parts.begin(), parts.end(), [file](const char* part) {
        return std::strstr(file, part) != nullptr;
    });
}

/// Of Qt's exported classes, those that only Qt makes objects of.
bool isInnerName(QByteArrayView name)
{
    constexpr std::array<QByteArrayView, 11> names { "QAccessibleCache", "QEventLoop",
        "QFactoryLoader", "QKeyMapper", "QOpenGLContextGroup", "QPlatformGraphicsBuffer",
        "QPlatformNativeInterface", "QSGContext", "QSGContextPlugin", "QSpiAccessibleBridge",
        "QUnifiedTimer" };
    return name.endsWith("Private") || name.startsWith("QtPrivate::")
        || std::find(names.begin(), names.end(), name) != names.end();
}

bool isInnerClass(const QMetaObject* metaObject)
{
    Dl_info place = {};
    if (dladdr(metaObject, &place) != 0 && place.dli_fname) {
        // What Qt doesn't export is for itself alone.
        const bool isOfQt = std::strstr(place.dli_fname, "/libQt6") != nullptr;
        if (isInnerFile(place.dli_fname) || (isOfQt && place.dli_saddr != metaObject))
            return true;
    }
    for (const QMetaObject* each = metaObject; each; each = each->superClass()) {
        if (isInnerName(each->className()))
            return true;
    }
    return false;
}

/// Classes are few, and objects many.
bool isForPeople(const QObject* object)
{
    static auto& known = *new QHash<const QMetaObject*, bool>;
    const QMetaObject* const metaObject = object->metaObject();
    // A helper without a class, a name or anything below it has nothing to show.
    if (metaObject == &QObject::staticMetaObject && object->objectName().isEmpty()
        && object->children().isEmpty())
        return false;
    const auto found = known.constFind(metaObject);
    return found != known.constEnd() ? *found
                                     : *known.insert(metaObject, !isInnerClass(metaObject));
}

} // namespace

LooseObjects::LooseObjects()
{
    setName("Objects without a parent");
    makeChildrenLater();
}

void LooseObjects::update(ObjectRegister::Look look)
{
    find(look);
    if (!waitsForLook())
        followObjects();
}

void LooseObjects::makeChildren()
{
    find(ObjectRegister::Look::News); // some may have died since
    followObjects();
}

/// Those that stay keep their places, and new ones come behind, by class.
void LooseObjects::find(ObjectRegister::Look look)
{
    const QObjectList found = ObjectRegister::parentless(look);
    QSet<QObject*> fresh(found.begin(), found.end());
    m_objects.removeIf([&](QObject* object) { return !fresh.remove(object); });
    const auto formerCount = m_objects.size();
    for (QObject* const object : std::as_const(fresh)) {
        if (isForPeople(object))
            m_objects += object;
    }
    std::sort(m_objects.begin() + formerCount, m_objects.end(), [](QObject* left, QObject* right) {
        return std::strcmp(left->metaObject()->className(), right->metaObject()->className()) < 0;
    });
}

void LooseObjects::followObjects()
{
    const QSet<QObject*> objects(m_objects.begin(), m_objects.end());
    QSet<QObject*> shown;
    for (int i = getNumMadeChildren() - 1; i >= 0; --i) {
        // Null if another object lives there by now.
        QObject* const object = crvNodeObject(getChild(i));
        if (object && objects.contains(object))
            shown.insert(object);
        else
            removeChild(i);
    }
    std::vector<KnNodePtr> nodes;
    for (QObject* const object : std::as_const(m_objects)) {
        if (!shown.contains(object))
            nodes.emplace_back(crvObjectNode(object));
    }
    if (!nodes.empty())
        replaceChildren(getNumMadeChildren(), 0, std::move(nodes));
}
