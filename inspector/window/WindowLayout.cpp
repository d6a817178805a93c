// SPDX-License-Identifier: BSD-3-Clause
#include "WindowLayout.h"

#include "Messages.h"
#include "PaneColumns.h"

#include <QCryptographicHash>
#include <QEvent>
#include <QMainWindow>
#include <QSettings>
#include <QSplitter>
#include <QTimer>

#include <algorithm>

namespace {

QString geometryKey() { return QStringLiteral("window/geometry"); }

QString layoutKey() { return QStringLiteral("window/layout"); }

QString checkKey() { return QStringLiteral("window/check"); }

// Set before the layout is restored, and removed when the window has come up with it.
QString restoringKey() { return QStringLiteral("window/restoring"); }

QString columnsKey(const PaneColumns* columns)
{
    return QStringLiteral("window/columns/") + columns->parent()->objectName();
}

QString splitterKey(const QSplitter* splitter)
{
    return QStringLiteral("window/splitters/") + splitter->objectName();
}

constexpr int maxSize = 10000; // in pixels

QString checkOf(const QByteArray& geometry, const QByteArray& layout)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QByteArray::number(geometry.size()) + ' ' + geometry + layout);
    return QString::fromLatin1(hash.result().toHex());
}

} // namespace

WindowLayout::WindowLayout(QMainWindow* window, QSettings* settings, int version)
    : QObject(window)
    , m_window(window)
    , m_settings(settings)
    , m_version(version)
{
}

bool WindowLayout::restore()
{
    restoreSizes();
    const QByteArray geometry = m_settings->value(geometryKey()).toByteArray();
    const QByteArray layout = m_settings->value(layoutKey()).toByteArray();
    if (m_settings->contains(restoringKey())) {
        drop();
        complain(tr("The saved window layout is not used again: the program ended while it was "
                    "being restored."));
        return false;
    }
    // Nothing was saved, or it was saved by a version without the check.
    if (!m_settings->contains(checkKey())) {
        drop();
        return false;
    }
    if (m_settings->value(checkKey()).toString() != checkOf(geometry, layout)) {
        drop();
        complain(tr("The saved window layout is damaged and is not used."));
        return false;
    }

    m_settings->setValue(restoringKey(), true);
    m_settings->sync(); // the next line may be the last one
    m_window->restoreGeometry(geometry);
    const bool restored = m_window->restoreState(layout, m_version);
    m_window->installEventFilter(this);
    return restored;
}

void WindowLayout::save()
{
    saveSizes();
    const QByteArray geometry = m_window->saveGeometry();
    const QByteArray layout = m_window->saveState(m_version);
    m_settings->setValue(geometryKey(), geometry);
    m_settings->setValue(layoutKey(), layout);
    m_settings->setValue(checkKey(), checkOf(geometry, layout));
    m_settings->remove(restoringKey());
}

// These are plain numbers, which can't end the program.
void WindowLayout::restoreSizes()
{
    for (PaneColumns* columns : m_columns)
        columns->setWidths(m_settings->value(columnsKey(columns)).toList());
    for (QSplitter* splitter : m_window->findChildren<QSplitter*>()) {
        const QVariantList saved = m_settings->value(splitterKey(splitter)).toList();
        QList<int> sizes;
        for (const QVariant& size : saved)
            sizes.append(std::clamp(size.toInt(), 1, maxSize));
        if (sizes.size() == splitter->count())
            splitter->setSizes(sizes);
    }
}

void WindowLayout::saveSizes()
{
    for (const PaneColumns* columns : m_columns)
        m_settings->setValue(columnsKey(columns), columns->widths());
    for (const QSplitter* splitter : m_window->findChildren<QSplitter*>()) {
        QVariantList sizes;
        for (const int size : splitter->sizes())
            sizes.append(size);
        // One that was never seen has none yet.
        if (!splitter->objectName().isEmpty() && !sizes.contains(0))
            m_settings->setValue(splitterKey(splitter), sizes);
    }
}

// The docks take their places only when the window is shown, in events that are in the queue by
// then. Once those have run, the window has come up.
bool WindowLayout::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window && event->type() == QEvent::Show) {
        m_window->removeEventFilter(this);
        QTimer::singleShot(0, this, [this] { m_settings->remove(restoringKey()); });
    }
    return QObject::eventFilter(watched, event);
}

void WindowLayout::drop()
{
    for (const QString& key : { geometryKey(), layoutKey(), checkKey(), restoringKey() })
        m_settings->remove(key);
}
