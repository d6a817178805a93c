// SPDX-License-Identifier: BSD-3-Clause
#include "WfMFieldTableItemDelegate.h"

#include "AccessibleNames.h"
#include "CellEditing.h"
#include "NumberLimits.h"
#include "NumberLocale.h"
#include "QUIntValidator.h"
#include "QULongValidator.h"
#include "RealValidator.h"
#include "WfIntSlider.h"
#include "WfMFieldWidget.h"
#include "WfRealSlider.h"
#include "WfUIntSlider.h"

#include <QEvent>
#include <QIntValidator>
#include <QLineEdit>
#include <QPainter>

#include <limits>

namespace {

// How much narrower than its cell a text stays, in pixels, both sides together.
constexpr int cellPadding = 4;
constexpr unsigned int unsignedTop = std::numeric_limits<unsigned int>::max();

/// Null for a kind whose lines take any text.
QValidator* makeValidator(int kind, QObject* parent)
{
    switch (kind) {
    case Int16Kind:
        return new QIntValidator(-32767, 32767, parent);
    case UInt16Kind:
        return new QIntValidator(0, 65535, parent);
    case WholeNumberKind:
        return new QIntValidator(parent);
    case UnsignedNumberKind:
        return new QUIntValidator(0, unsignedTop, parent);
    case Int32Kind:
        return new QIntValidator(-2147483647, 2147483647, parent);
    case UInt32Kind:
        return new QULongValidator(0, unsignedTop, parent);
    case FloatKind:
        return new RealValidator(-floatLimit, floatLimit, floatDecimals, parent);
    case DoubleKind:
        return new RealValidator(parent);
    default:
        return nullptr;
    }
}

/// Such as "row 3 x".
QString cellName(const QModelIndex& index)
{
    const QAbstractItemModel& model = *index.model();
    const QString row = QStringLiteral("row %1").arg(index.row() + 1);
    return model.columnCount() > 1
        ? row + QLatin1Char(' ') + model.headerData(index.column(), Qt::Horizontal).toString()
        : row;
}

/// Whether a line's text may be written: it has no validator, or one that accepts it.
bool isAcceptable(const QLineEdit& line)
{
    const QValidator* const validator = line.validator();
    QString text = line.text();
    int position = 0;
    return !validator || validator->validate(text, position) == QValidator::Acceptable;
}

void showText(QWidget* editor, const QString& text)
{
    if (auto* const line = qobject_cast<QLineEdit*>(editor))
        line->setText(text);
    else if (auto* const real = dynamic_cast<WfRealSlider*>(editor))
        real->setValue(static_cast<double>(text.toFloat()));
    else if (auto* const slider = qobject_cast<WfSlider*>(editor))
        slider->setValue(text);
}

} // namespace

WfMFieldTableItemDelegate::WfMFieldTableItemDelegate(
    WfMFieldWidget* widget, CellEditing& editing, QObject* table)
    : QItemDelegate(table)
    , m_widget(widget)
    , m_editing(editing)
{
}

void WfMFieldTableItemDelegate::setIntRange(int min, int max)
{
    m_intMin = min;
    m_intMax = max;
}

void WfMFieldTableItemDelegate::setRealRange(double min, double max)
{
    m_realMin = min;
    m_realMax = max;
}

void WfMFieldTableItemDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    painter->save();
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    if (isSelected)
        painter->fillRect(option.rect, option.palette.highlight());
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));

    const QString text = m_widget->getCellText(index.row(), index.column());
    m_drawing.draw(*painter, option.rect, cellPadding, text);
    painter->restore();
}

QWidget* WfMFieldTableItemDelegate::createEditor(
    QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const
{
    const int row = index.row();
    const int column = index.column();
    const bool isOnlyColumn = column == 0 && index.model()->columnCount(QModelIndex()) == 1;

    QWidget* editor = isOnlyColumn ? makeSlider(parent, row, column) : nullptr;
    if (!editor)
        editor = makeLineEdit(parent);
    nameCellInputs(editor, cellName(index));
    showText(editor, m_widget->getCellText(row, column));
    editor->setFocusPolicy(Qt::StrongFocus);
    return editor;
}

QWidget* WfMFieldTableItemDelegate::makeSlider(QWidget* parent, int row, int column) const
{
    const auto inRange = [](auto* slider, auto min, auto max, bool bounded) {
        slider->setRange(min, max, bounded);
        // It hides the cell behind it, and typing goes straight to its line.
        slider->setAutoFillBackground(true);
        slider->setAttribute(Qt::WA_NoMousePropagation);
        slider->setFocusProxy(slider->m_lineEdit);
        return slider;
    };
    const auto makeInt = [&](int kind) -> QWidget* {
        return inRange(
            new WfIntSlider(kind, 1, m_widget, parent, row, column), m_intMin, m_intMax, m_bounded);
    };
    const auto makeUInt = [&](int kind) -> QWidget* {
        return inRange(new WfUIntSlider(kind, 1, m_widget, parent, row, column),
            static_cast<unsigned int>(m_intMin), static_cast<unsigned int>(m_intMax), m_bounded);
    };
    switch (m_kind) {
    case Int16Kind:
        return makeInt(WfIntSlider::Int16);
    case UInt16Kind:
        return makeUInt(WfUIntSlider::UInt16);
    case Int32Kind:
        return makeInt(WfIntSlider::Int32);
    case UInt32Kind:
        return makeUInt(WfUIntSlider::UInt32);
    case FloatKind:
        return inRange(new WfRealSlider(1, m_widget, parent, true, row, column), m_realMin,
            m_realMax, m_bounded);
    default:
        return nullptr;
    }
}

QWidget* WfMFieldTableItemDelegate::makeLineEdit(QWidget* parent) const
{
    auto* const line = new QLineEdit(parent);
    line->setObjectName(QStringLiteral("qt_lineeditor"));
    line->setFrame(false);
    // Qt's own limit would cut a longer text, and a commit would write what is left.
    line->setMaxLength(std::numeric_limits<int>::max());
    setEditorValidator(line);
    return line;
}

void WfMFieldTableItemDelegate::setEditorValidator(QLineEdit* editor) const
{
    QValidator* const validator = makeValidator(m_kind, editor);
    if (!validator)
        return;
    validator->setLocale(numberLocale());
    editor->setValidator(validator);
}

void WfMFieldTableItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    showText(editor, m_widget->getCellText(index.row(), index.column()));
}

void WfMFieldTableItemDelegate::setModelData(
    QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    commit(editor, model, index, { index.column(), Qt::DisplayRole, false });
}

void WfMFieldTableItemDelegate::commit(QWidget* editor, QAbstractItemModel* model,
    const QModelIndex& index, const LineWrite& write) const
{
    if (!editor)
        return;
    m_editing.takeOut(editor, index);
    const auto* const line = qobject_cast<QLineEdit*>(editor);
    if (!line) {
        QItemDelegate::setModelData(editor, model, index);
        return;
    }
    if (!line->isModified() && !write.alsoUnchanged)
        return;
    const QString text = line->text();
    if (isAcceptable(*line))
        m_widget->setFieldValue(index.row(), write.component, text);
    model->setData(index, text, write.role);
}

bool WfMFieldTableItemDelegate::eventFilter(QObject* editor, QEvent* event)
{
    return event->type() != QEvent::FocusOut && QItemDelegate::eventFilter(editor, event);
}

void WfMFieldTableItemDelegate::updateEditorGeometry(
    QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex&) const
{
    editor->setGeometry(option.rect);
}
