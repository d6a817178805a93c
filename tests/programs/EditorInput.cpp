// SPDX-License-Identifier: BSD-3-Clause
#include "EditorInput.h"

#include "InspectorInput.h"
#include "SliderInput.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QFont>
#include <QKeySequence>
#include <QLineEdit>
#include <QLocale>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTableWidget>
#include <QTest>
#include <QUrl>

namespace {

template <class Widget>
Widget* usable(const QWidget* editor, const QString& name = QString())
{
    const QList<Widget*> widgets = editor->findChildren<Widget*>(name);
    for (Widget* const widget : widgets) {
        if (widget->isVisible() && widget->isEnabled())
            return widget;
    }
    return nullptr;
}

/// One more, or less where that may be more than the setter takes.
qlonglong otherNumber(qlonglong number)
{
    constexpr qlonglong large = 1000000;
    return number + (number < large ? 1 : -1);
}

/// The last number in a text, or a 1 behind a text without one.
QString withOtherNumber(const QString& text)
{
    static const QRegularExpression lastNumber(QStringLiteral("(-?\\d+)(\\.\\d+)?(?=\\D*$)"));
    const QRegularExpressionMatch match = lastNumber.match(text);
    if (!match.hasMatch())
        return text + u'1';
    const QString number = QString::number(otherNumber(match.captured(1).toLongLong()));
    return QString(text).replace(match.capturedStart(), match.capturedLength(), number);
}

QString otherText(const QVariant& value, const QString& shown)
{
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::QByteArray:
        return shown + u'x';
    case QMetaType::QChar:
        return shown == u"x" ? QStringLiteral("y") : QStringLiteral("x");
    case QMetaType::QUrl:
        return QStringLiteral("https://example.org/%1").arg(value.toUrl().path().size());
    case QMetaType::QKeySequence:
        return QStringLiteral("Ctrl+Alt+Shift+F11");
    case QMetaType::QLocale:
        return value.toLocale().language() == QLocale::French ? QStringLiteral("de-AT")
                                                              : QStringLiteral("fr-CA");
    case QMetaType::QFont: {
        auto font = value.value<QFont>();
        font.setPointSize(font.pointSize() + 1);
        return font.toString();
    }
    case QMetaType::QPalette:
        return QStringLiteral("Window #123456");
    case QMetaType::QCursor:
        return shown == u"CrossCursor" ? QStringLiteral("WaitCursor")
                                       : QStringLiteral("CrossCursor");
    case QMetaType::QSizePolicy:
        return shown.startsWith(u"Fixed Expanding") ? QStringLiteral("Expanding Fixed")
                                                    : QStringLiteral("Fixed Expanding");
    case QMetaType::QDate:
        return value.toDate().addDays(-1).toString(Qt::ISODate);
    case QMetaType::QTime:
        return value.toTime().addMSecs(61234).toString(Qt::ISODateWithMs);
    case QMetaType::QDateTime:
        return value.toDateTime().addMSecs(61234).toString(Qt::ISODateWithMs);
    case QMetaType::QColor: // a component
        return shown == u"0.5" ? QStringLiteral("0.25") : QStringLiteral("0.5");
    default:
        return withOtherNumber(shown);
    }
}

void chooseOther(QComboBox* box)
{
    const bool isLast = box->currentIndex() + 1 >= box->count();
    box->setFocus();
    QTest::keyClick(box, isLast ? Qt::Key_Up : Qt::Key_Down);
}

bool drag(QSlider* slider)
{
    const int before = slider->value();
    const bool isRight = before < (slider->minimum() + slider->maximum()) / 2;
    SliderInput mouse(slider);
    mouse.press();
    mouse.moveBy(isRight ? 40 : -40);
    mouse.release();
    return slider->value() != before;
}

/// Whole numbers are typed: a slider over all of them may make a widget that is wider than any
/// memory.
QSlider* sliderFor(const QWidget* editor, const QVariant& value)
{
    const bool isReal = value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float;
    return isReal ? usable<QSlider>(editor) : nullptr;
}

bool editCell(QTableWidget* table, const QVariant& value)
{
    if (table->rowCount() == 0 || table->columnCount() == 0)
        return false;
    const QModelIndex cell = table->model()->index(0, table->columnCount() - 1);
    const QRect place = table->visualRect(cell);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place.center());
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place.center());
    auto* const line = usable<QLineEdit>(table->viewport());
    if (!line)
        return false;
    const QString shown = line->text();
    typeInto(
        line, value.typeId() == QMetaType::QStringList ? shown + u'x' : withOtherNumber(shown));
    return true;
}

} // namespace

void typeInto(QWidget* input, const QString& text)
{
    QTest::mouseClick(input, Qt::LeftButton);
    QTest::keySequence(input, QKeySequence::SelectAll);
    if (text.isEmpty())
        QTest::keyClick(input, Qt::Key_Delete);
    else
        QTest::keyClicks(input, text);
    QTest::keyClick(input, Qt::Key_Return);
}

bool editByInput(QWidget* editor, const QVariant& value)
{
    const QPointer<QWidget> alive(editor);
    if (auto* const table = usable<QTableWidget>(editor))
        return editCell(table, value);
    if (auto* const box = usable<QComboBox>(editor)) {
        chooseOther(box);
    } else if (auto* const slider = sliderFor(editor, value); slider && drag(slider)) {
        settle();
    } else if (auto* const spin = usable<QSpinBox>(editor)) {
        typeInto(spin, QString::number(otherNumber(spin->value())));
    } else if (auto* const check = usable<QCheckBox>(editor, QStringLiteral("m_box"))) {
        QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
    } else if (auto* const bit = usable<QCheckBox>(editor, QStringLiteral("m_checkBoxes"))) {
        QTest::mouseClick(bit, Qt::LeftButton, {}, QPoint(8, bit->height() / 2));
    } else if (auto* const line = usable<QLineEdit>(editor)) {
        typeInto(line, otherText(value, line->text()));
    } else {
        return false;
    }
    settle();
    return true;
}
