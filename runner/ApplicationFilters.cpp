// SPDX-License-Identifier: BSD-3-Clause
#include "ApplicationFilters.h"

#include "OwnObjects.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>

#include <algorithm>
#include <cstring>
#include <vector>

#include <dlfcn.h>

namespace {

const OwnObjects* leftOut = nullptr; // not owned

using Change = void (*)(QObject* watched, QObject* filter);

Change original(const char* symbol) { return reinterpret_cast<Change>(dlsym(RTLD_NEXT, symbol)); }

void install(QObject* watched, QObject* filter)
{
    static const Change change = original("_ZN7QObject18installEventFilterEPS_");
    change(watched, filter);
}

void remove(QObject* watched, QObject* filter)
{
    static const Change change = original("_ZN7QObject17removeEventFilterEPS_");
    change(watched, filter);
}

/// Stands on the application object in place of a filter of the program's, and goes with it.
class FilterProxy : public QObject {
public:
    explicit FilterProxy(QObject* filter)
        : m_filter(filter)
    {
        connect(filter, &QObject::destroyed, this, &QObject::deleteLater);
        proxies().push_back(this);
    }
    ~FilterProxy() override { std::erase(proxies(), this); }
    Q_DISABLE_COPY_MOVE(FilterProxy)

    /// Null if there is none.
    static FilterProxy* of(const QObject* filter)
    {
        const auto found = std::find_if(proxies().begin(), proxies().end(),
            [filter](const FilterProxy* proxy) { return proxy->m_filter == filter; });
        return found == proxies().end() ? nullptr : *found;
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (!m_filter || (leftOut && leftOut->contains(watched)))
            return false;
        return m_filter->eventFilter(watched, event);
    }

private:
    static std::vector<FilterProxy*>& proxies()
    {
        static auto& all = *new std::vector<FilterProxy*>; // outlives all static objects
        return all;
    }

    const QPointer<QObject> m_filter;
};

/// Whether code of Qt's own stands at an address: its tool tips and menus filter the application's
/// events as well, also on behalf of the inspector.
bool isOfQt(const void* address)
{
    Dl_info place = {};
    return dladdr(address, &place) != 0 && place.dli_fname
        && std::strstr(place.dli_fname, "/libQt6") != nullptr;
}

bool isForProxy(const QObject* watched, const QObject* filter)
{
    return filter && watched == QCoreApplication::instance()
        && filter->thread() == QThread::currentThread()
        && watched->thread() == QThread::currentThread();
}

} // namespace

void ApplicationFilters::leaveOut(const OwnObjects* own) { leftOut = own; }

void ApplicationFilters::installOwn(QObject* filter)
{
    install(QCoreApplication::instance(), filter);
}

// These two stand in for Qt's, with its names.

void QObject::installEventFilter(QObject* filter)
{
    if (!isForProxy(this, filter) || isOfQt(__builtin_return_address(0))) {
        install(this, filter);
        return;
    }
    // The same one again comes to the front.
    FilterProxy* const known = FilterProxy::of(filter);
    install(this, known ? known : new FilterProxy(filter));
}

void QObject::removeEventFilter(QObject* obj)
{
    FilterProxy* const proxy = isForProxy(this, obj) ? FilterProxy::of(obj) : nullptr;
    remove(this, proxy ? proxy : obj);
    if (proxy)
        proxy->deleteLater(); // it may be handling an event
}
