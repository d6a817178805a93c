// SPDX-License-Identifier: BSD-3-Clause
#include "LayoutDump.h"

#include "NumberLocale.h"
#include "Pixmaps.h"

#include <QApplication>
#include <QGridLayout>
#include <QHeaderView>
#include <QIntValidator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString className(const QObject* object)
{
    const QString name = QLatin1String(object->metaObject()->className());
    return name.startsWith(u'Q') ? name.mid(1) : name;
}

QString quoted(const QString& text) { return u'"' + text + u'"'; }

QString range(int bottom, int top) { return u"%1..%2"_s.arg(bottom).arg(top); }

QString extent(QChar letter, int minimum, int maximum)
{
    if (minimum == maximum)
        return letter + QString::number(maximum);
    return maximum < QWIDGETSIZE_MAX ? letter + u"<="_s + QString::number(maximum) : QString();
}

QString policy(const QSizePolicy& policy)
{
    static const QMap<QSizePolicy::Policy, QString> names { { QSizePolicy::Fixed, u"fixed"_s },
        { QSizePolicy::Minimum, u"minimum"_s }, { QSizePolicy::Maximum, u"maximum"_s },
        { QSizePolicy::Preferred, u"preferred"_s }, { QSizePolicy::Expanding, u"expanding"_s } };
    return names[policy.horizontalPolicy()] + u'/' + names[policy.verticalPolicy()];
}

QString frameOf(const QFrame* frame)
{
    static const QMap<int, QString> names { { QFrame::NoFrame, u"none"_s },
        { QFrame::Box, u"box"_s }, { QFrame::StyledPanel, u"styled"_s },
        { QFrame::Plain, u"plain"_s }, { QFrame::Raised, u"raised"_s },
        { QFrame::Sunken, u"sunken"_s } };
    return u"%1 %2 %3"_s.arg(names[frame->frameShape()], names[frame->frameShadow()])
        .arg(frame->lineWidth());
}

QString iconOf(const QAbstractButton* button)
{
    const QIcon icon = button->icon();
    if (icon.isNull())
        return {};
    const std::pair<QString, QPixmap> motifs[] = { { u"default"_s, defaultPixmap() },
        { u"ignore"_s, ignorePixmap() }, { u"edit"_s, editPixmap() }, { u"add"_s, addPixmap() },
        { u"delete"_s, deletePixmap() }, { u"up"_s, upPixmap() }, { u"down"_s, downPixmap() } };
    const QSize size = icon.availableSizes().value(0);
    for (const auto& [name, pixmap] : motifs) {
        if (icon.pixmap(size).toImage() == pixmap.toImage())
            return u"icon "_s + name;
    }
    return u"icon %1x%2"_s.arg(size.width()).arg(size.height());
}

QString validatorOf(const QValidator* validator)
{
    QString text;
    if (const auto* real = qobject_cast<const QDoubleValidator*>(validator)) {
        text = real->bottom() == -real->top() ? u"real \u00b1"_s
                                              : QString::number(real->bottom(), 'g', 17) + u".."_s;
        text += u"%1 %2"_s.arg(real->top(), 0, 'g', 17).arg(real->decimals());
        if (real->notation() != QDoubleValidator::ScientificNotation)
            text += u" standard"_s;
    } else if (const auto* whole = qobject_cast<const QIntValidator*>(validator)) {
        text = u"int "_s + range(whole->bottom(), whole->top());
    } else if (validator) {
        text = u"unsigned"_s; // without a meta-object of its own
    }
    if (validator && validator->locale() != numberLocale())
        text += u" localised"_s;
    return text;
}

QString lineOf(const QLineEdit* line, const QLineEdit& fresh)
{
    QStringList parts { validatorOf(line->validator()) };
    if (line->alignment() != fresh.alignment())
        parts << (line->alignment() == Qt::AlignLeft ? u"left"_s : u"aligned"_s);
    if (line->maxLength() != fresh.maxLength())
        parts << u"to %1"_s.arg(line->maxLength());
    if (line->hasFrame() != fresh.hasFrame())
        parts << u"frameless"_s;
    parts.removeAll(QString());
    return parts.join(u' ');
}

QString tableOf(const QTableWidget* table)
{
    QStringList headers;
    for (int column = 0; column < table->columnCount(); ++column) {
        const QTableWidgetItem* const header = table->horizontalHeaderItem(column);
        headers << (header ? header->text() : u"-"_s);
        if (table->horizontalHeader()->sectionResizeMode(column) != QHeaderView::Interactive)
            headers << u"(not sizable)"_s;
    }
    return u"[%1] bars %2 %3"_s.arg(headers.join(u' '))
        .arg(table->verticalScrollBarPolicy())
        .arg(table->horizontalScrollBarPolicy());
}

} // namespace

const QWidget* LayoutDump::freshOf(const QWidget* widget) const
{
    const QWidget* const all[]
        = { &m_label, &m_button, &m_line, &m_check, &m_combo, &m_spin, &m_slider, &m_table };
    const auto fresh = std::find_if(std::begin(all), std::end(all),
        [widget](const QWidget* each) { return each->metaObject()->cast(widget); });
    return fresh == std::end(all) ? &m_frame : *fresh;
}

QString LayoutDump::widget(const QWidget* widget)
{
    m_met << widget;
    const QWidget* const fresh = freshOf(widget);
    QStringList parts { className(widget), widget->objectName(),
        extent(u'w', widget->minimumWidth(), widget->maximumWidth()),
        extent(u'h', widget->minimumHeight(), widget->maximumHeight()) };
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        parts << (label->text().isEmpty() ? QString() : quoted(label->text()));
        if (label->font().pointSize() > 0
            && label->font().pointSize() != QApplication::font().pointSize())
            parts << u"%1pt"_s.arg(label->font().pointSize());
        if (label->alignment() != m_label.alignment())
            parts << u"aligned"_s;
        if (label->hasScaledContents())
            parts << u"scaled"_s;
        if (label->text().isEmpty() && label->hasMouseTracking()) // rich text turns it on
            parts << u"tracked"_s;
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        parts << (button->text().isEmpty() ? QString() : quoted(button->text())) << iconOf(button);
        if (button->isCheckable() != static_cast<const QAbstractButton*>(fresh)->isCheckable())
            parts << u"checkable"_s;
        if (button->isChecked())
            parts << u"checked"_s;
    } else if (const auto* line = qobject_cast<const QLineEdit*>(widget)) {
        parts << lineOf(line, m_line);
    } else if (const auto* spin = qobject_cast<const QSpinBox*>(widget)) {
        parts << range(spin->minimum(), spin->maximum());
        if (spin->singleStep() != 1 || !spin->keyboardTracking()
            || spin->locale() != numberLocale())
            parts << u"odd"_s;
    } else if (const auto* slider = qobject_cast<const QSlider*>(widget)) {
        parts << range(slider->minimum(), slider->maximum());
        if (slider->orientation() != Qt::Horizontal || !slider->hasTracking())
            parts << u"odd"_s;
    } else if (const auto* table = qobject_cast<const QTableWidget*>(widget)) {
        parts << u"h>=%1"_s.arg(table->minimumHeight()) << tableOf(table);
    }
    const auto* const frame = qobject_cast<const QFrame*>(widget);
    if (frame && frameOf(frame) != frameOf(static_cast<const QFrame*>(fresh)))
        parts << frameOf(frame);
    if (widget->isWindow() && widget->minimumSize() != widget->maximumSize())
        parts << u"%1x%2"_s.arg(widget->width()).arg(widget->height());
    if (policy(widget->sizePolicy()) != policy(fresh->sizePolicy()))
        parts << policy(widget->sizePolicy());
    if (!widget->toolTip().isEmpty())
        parts << u"tip "_s + quoted(widget->toolTip());
    if (!widget->isEnabled())
        parts << u"off"_s;
    if (widget->focusPolicy() != fresh->focusPolicy())
        parts << (widget->focusPolicy() == Qt::NoFocus ? u"no focus"_s : u"focus"_s);
    if (widget->layout())
        parts << layout(widget->layout());
    parts.removeAll(QString());
    return parts.join(u' ');
}

QString LayoutDump::layout(const QLayout* layout)
{
    const QMargins margins = layout->contentsMargins();
    QString text
        = u"%1 %2 m%3 s%4"_s.arg(className(layout).remove(u"Layout"_s), layout->objectName())
              .arg(margins.left())
              .arg(layout->spacing());
    if (margins != QMargins(margins.left(), margins.left(), margins.left(), margins.left()))
        text += u" uneven"_s;
    if (layout->sizeConstraint() == QLayout::SetMinimumSize)
        text += u" min"_s;
    QStringList items;
    for (int i = 0; i < layout->count(); ++i)
        items << item(layout, i);
    return u"%1 [%2]"_s.arg(text, items.join(u", "_s));
}

QString LayoutDump::item(const QLayout* layout, int index)
{
    const QLayoutItem* const item = layout->itemAt(index);
    QString text;
    if (const QWidget* const child = const_cast<QLayoutItem*>(item)->widget()) {
        text = widget(child);
    } else if (const QLayout* const inner = const_cast<QLayoutItem*>(item)->layout()) {
        text = this->layout(inner);
    } else {
        const QSize size = item->sizeHint();
        const auto* const gap = const_cast<QLayoutItem*>(item)->spacerItem();
        text
            = u"gap %1x%2 %3"_s.arg(size.width()).arg(size.height()).arg(policy(gap->sizePolicy()));
    }
    if (item->alignment())
        text += u" aligned"_s;
    if (const auto* box = qobject_cast<const QBoxLayout*>(layout); box && box->stretch(index))
        text += u" *%1"_s.arg(box->stretch(index));
    if (const auto* grid = qobject_cast<const QGridLayout*>(layout)) {
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(index, &row, &column, &rows, &columns);
        text += u" @%1,%2"_s.arg(row).arg(column);
        if (rows != 1 || columns != 1)
            text += u" spans"_s;
    }
    return text;
}

QString LayoutDump::window(const QWidget* window)
{
    m_met.clear();
    const QString text = widget(window);
    QList<qsizetype> stops;
    const QWidget* at = window;
    do {
        if (m_met.contains(at) && (at->focusPolicy() & Qt::TabFocus) && at != window)
            stops << m_met.indexOf(at);
        at = at->nextInFocusChain();
    } while (at != window);
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
        if (!child->isWindow() || child->objectName().isEmpty())
            continue;
        text += u" popup "_s + window(child);
    }
    return text;
}
