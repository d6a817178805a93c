// SPDX-License-Identifier: BSD-3-Clause
#include "LayoutDump.h"

#include "NumberLocale.h"
#include "Pixmaps.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTableWidget>
#include <QValidator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// In the order in which they are written down.
const char* const properties[] = { "checkable", "checked", "minimum", "maximum", "singleStep",
    "keyboardTracking", "tracking", "orientation", "alignment", "maxLength", "frame",
    "scaledContents", "frameShape", "frameShadow", "lineWidth", "verticalScrollBarPolicy",
    "horizontalScrollBarPolicy", "toolTip", "enabled", "focusPolicy" };

QString className(const QObject* object)
{
    const QString name = QLatin1String(object->metaObject()->className());
    return name.startsWith(u'Q') ? name.mid(1) : name;
}

QString textOf(const QObject* object, const QMetaProperty& property)
{
    const QVariant value = property.read(object);
    return property.isFlagType()
        ? QString::fromLatin1(property.enumerator().valueToKeys(value.toInt()))
        : value.toString();
}

QString policy(const QSizePolicy& policy)
{
    const auto text = [](QSizePolicy::Policy each) {
        return QLatin1String(QMetaEnum::fromType<QSizePolicy::Policy>().valueToKey(each));
    };
    return text(policy.horizontalPolicy()) + u'/' + text(policy.verticalPolicy());
}

QString extent(QChar letter, int minimum, int maximum)
{
    if (minimum == maximum)
        return letter + QString::number(maximum);
    return maximum < QWIDGETSIZE_MAX ? letter + u"<="_s + QString::number(maximum) : QString();
}

QString iconOf(const QIcon& icon)
{
    const std::pair<QString, QPixmap> motifs[] = { { u"default"_s, defaultPixmap() },
        { u"ignore"_s, ignorePixmap() }, { u"edit"_s, editPixmap() }, { u"add"_s, addPixmap() },
        { u"delete"_s, deletePixmap() }, { u"up"_s, upPixmap() }, { u"down"_s, downPixmap() } };
    const QSize size = icon.availableSizes().value(0);
    for (const auto& [name, pixmap] : motifs) {
        if (icon.pixmap(size).toImage() == pixmap.toImage())
            return u"icon="_s + name;
    }
    return icon.isNull() ? QString() : u"icon=%1x%2"_s.arg(size.width()).arg(size.height());
}

QString validatorOf(const QValidator* validator)
{
    if (!validator)
        return {};
    QStringList values;
    for (int i = 1; i < validator->metaObject()->propertyCount(); ++i) // the first is the name
        values << textOf(validator, validator->metaObject()->property(i));
    return u"%1(%2)"_s.arg(className(validator), values.join(u' '))
        + (validator->locale() == numberLocale() ? QString() : u" localised"_s);
}

QString headersOf(const QTableWidget* table)
{
    QStringList headers;
    for (int column = 0; column < table->columnCount(); ++column) {
        const QTableWidgetItem* const header = table->horizontalHeaderItem(column);
        headers << (header ? header->text() : u"-"_s);
    }
    return u"[%1] h>=%2"_s.arg(headers.join(u' ')).arg(table->minimumHeight());
}

} // namespace

LayoutDump::LayoutDump()
{
    for (QWidget* each : std::initializer_list<QWidget*> { new QLabel, new QPushButton,
             new QLineEdit, new QCheckBox, new QComboBox, new QSpinBox, new QSlider(Qt::Horizontal),
             new QTableWidget, new QFrame })
        m_fresh.emplace_back(each);
}

QString LayoutDump::widget(const QWidget* widget)
{
    m_met << widget;
    const auto same = std::find_if(m_fresh.begin(), m_fresh.end() - 1,
        [widget](const auto& each) { return each->metaObject()->cast(widget); });
    const QWidget* const fresh = same->get();

    QStringList parts { className(widget), widget->objectName(),
        extent(u'w', widget->minimumWidth(), widget->maximumWidth()),
        extent(u'h', widget->minimumHeight(), widget->maximumHeight()) };
    const QString text = widget->inherits("QLabel") || widget->inherits("QAbstractButton")
        ? widget->property("text").toString()
        : QString();
    if (!text.isEmpty())
        parts << u'"' + text + u'"';
    else if (widget->inherits("QLabel") && widget->hasMouseTracking()) // rich text turns it on
        parts << u"tracked"_s;
    if (const int size = widget->font().pointSize(); widget->inherits("QLabel") && size > 0)
        parts << (size == QApplication::font().pointSize() ? QString() : u"%1pt"_s.arg(size));
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        parts << iconOf(button->icon());
    if (const auto* line = qobject_cast<const QLineEdit*>(widget))
        parts << validatorOf(line->validator());
    if (const auto* table = qobject_cast<const QTableWidget*>(widget))
        parts << headersOf(table);
    if (widget->inherits("QSpinBox") && widget->locale() != numberLocale())
        parts << u"localised"_s;
    for (const char* name : properties) {
        const QVariant value = widget->property(name);
        if (!value.isValid() || value == fresh->property(name))
            continue;
        const QMetaObject* const meta = widget->metaObject();
        parts << QLatin1String(name) + u'='
                + textOf(widget, meta->property(meta->indexOfProperty(name)));
    }
    if (widget->isWindow() && widget->minimumSize() != widget->maximumSize())
        parts << u"%1x%2"_s.arg(widget->width()).arg(widget->height());
    if (policy(widget->sizePolicy()) != policy(fresh->sizePolicy()))
        parts << policy(widget->sizePolicy());
    if (widget->layout())
        parts << layout(widget->layout());
    parts.removeAll(QString());
    return parts.join(u' ');
}

QString LayoutDump::layout(const QLayout* layout)
{
    const QMargins margins = layout->contentsMargins();
    const int margin = margins.left();
    QStringList items;
    for (int i = 0; i < layout->count(); ++i)
        items << item(layout, i);
    return u"%1 %2 m%3 s%4%5 [%6]"_s
        .arg(className(layout).remove(u"Layout"_s), layout->objectName())
        .arg(margins == QMargins(margin, margin, margin, margin) ? margin : -1)
        .arg(layout->spacing())
        .arg(layout->sizeConstraint() == QLayout::SetMinimumSize ? u" min"_s : QString(),
            items.join(u", "_s));
}

QString LayoutDump::item(const QLayout* layout, int index)
{
    QLayoutItem* const item = layout->itemAt(index);
    QString text;
    if (item->widget())
        text = widget(item->widget());
    else if (item->layout())
        text = this->layout(item->layout());
    else
        text = u"gap %1x%2 "_s.arg(item->sizeHint().width()).arg(item->sizeHint().height())
            + policy(item->spacerItem()->sizePolicy());
    if (item->alignment())
        text += u" aligned"_s;
    const auto* const box = qobject_cast<const QBoxLayout*>(layout);
    if (box && box->stretch(index))
        text += u" *%1"_s.arg(box->stretch(index));
    if (const auto* grid = qobject_cast<const QGridLayout*>(layout)) {
        int place[4]; // row, column, and how many of each
        grid->getItemPosition(index, &place[0], &place[1], &place[2], &place[3]);
        text += u" @%1,%2"_s.arg(place[0]).arg(place[1])
            + (place[2] * place[3] == 1 ? QString() : u" spans"_s);
    }
    return text;
}

QString LayoutDump::window(const QWidget* window)
{
    m_met.clear();
    const QString text = widget(window);
    QList<qsizetype> stops;
    for (const QWidget* at = window->nextInFocusChain(); at != window;
         at = at->nextInFocusChain()) {
        if (m_met.contains(at) && (at->focusPolicy() & Qt::TabFocus))
            stops << m_met.indexOf(at);
    }
    if (std::is_sorted(stops.begin(), stops.end()))
        return text;
    QStringList names;
    for (const qsizetype stop : stops)
        names << m_met[stop]->objectName();
    return text + u" tabs "_s + names.join(u' ');
}

QString LayoutDump::panel(const QWidget* panel)
{
    QString text = window(panel);
    for (const QWidget* child : panel->findChildren<QWidget*>()) {
        if (child->isWindow() && !child->objectName().isEmpty())
            text += u" popup "_s + window(child);
    }
    return text;
}
