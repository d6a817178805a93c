// SPDX-License-Identifier: BSD-3-Clause
#include "EditorHeading.h"

#include "CrvEditor.h"
#include "EditorPanes.h"
#include "ElidedLabel.h"
#include "KnField.h"
#include "KnFieldContainer.h"
#include "PaneNames.h"
#include "SceneText.h"

#include <QDockWidget>
#include <QEvent>
#include <QHBoxLayout>
#include <QStyle>
#include <QToolButton>

namespace {

// Such as "Desk lamp.intensity"; empty for what is no part of a scene.
QString objectText(const KnTypedObject* object)
{
    if (const auto* const field = dynamic_cast<const KnField*>(object)) {
        const KnFieldContainer* const node = field->getContainer();
        if (!node)
            return QString();
        const QString place = nodeLabel(*node) + QLatin1Char('.') + fieldName(*field);
        return field->isReadOnly() ? EditorHeading::tr("%1 (read-only)").arg(place) : place;
    }
    const auto* const node = dynamic_cast<const KnFieldContainer*>(object);
    return node ? nodeLabel(*node) : QString();
}

} // namespace

EditorHeading::EditorHeading(QDockWidget* dock)
    : QWidget(dock)
    , m_dock(dock)
    , m_text(new ElidedLabel(Qt::ElideMiddle, this))
{
    remove(dock); // it may have kept an earlier one
    setObjectName(QStringLiteral("editorHeading"));
    m_text->setObjectName(QStringLiteral("editorHeadingText"));
    auto* const layout = new QHBoxLayout(this);
    const int margin = style()->pixelMetric(QStyle::PM_DockWidgetTitleMargin, nullptr, this);
    layout->setContentsMargins(2 * margin + 2, margin, margin, margin);
    layout->setSpacing(0);
    layout->addWidget(m_text);

    m_floatButton = addButton(QStringLiteral("floatButton"), tr("Float"));
    m_floatButton->setIcon(style()->standardIcon(QStyle::SP_TitleBarNormalButton, nullptr, this));
    connect(m_floatButton, &QToolButton::clicked, m_dock,
        [this] { m_dock->setFloating(!m_dock->isFloating()); });
    QToolButton* const closeButton = addButton(QStringLiteral("closeButton"), tr("Close"));
    closeButton->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton, nullptr, this));
    connect(closeButton, &QToolButton::clicked, m_dock, &QWidget::close);

    m_dock->installEventFilter(this);
    showObject();
    m_dock->setTitleBarWidget(this);
}

void EditorHeading::remove(QDockWidget* dock)
{
    auto* const heading = qobject_cast<EditorHeading*>(dock->titleBarWidget());
    if (!heading)
        return;
    dock->setTitleBarWidget(nullptr);
    delete heading;
}

// As small as the buttons of other docks, and out of the way of the tab key as they are.
QToolButton* EditorHeading::addButton(const QString& name, const QString& tip)
{
    auto* const button = new QToolButton(this);
    button->setObjectName(name);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    button->setIconSize(QSize(size, size));
    button->setFixedSize(size, size);
    layout()->addWidget(button);
    return button;
}

// A dock gets its editor while it is hidden, and comes up when all is in place.
bool EditorHeading::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show)
        showObject();
    else if (event->type() == QEvent::Hide)
        m_names.setAttached(false);
    return QWidget::eventFilter(watched, event);
}

void EditorHeading::namesChanged(void* data, KnSensor*)
{
    auto* const heading = static_cast<EditorHeading*>(data);
    static_cast<void>(heading->m_names.takeNodes());
    heading->showObject();
}

void EditorHeading::showObject()
{
    m_names.setAttached(m_dock->isVisible());
    const CrvEditor* const editor = EditorPanes::editorIn(m_dock);
    const QString object = editor ? objectText(editor->getEditedObject()) : QString();
    const QString title = m_dock->windowTitle();
    completeNames(m_dock, title);
    m_text->setWholeText(
        object.isEmpty() ? title : QStringLiteral("%1  %2  %3").arg(title, QChar(0x2013), object));
}
