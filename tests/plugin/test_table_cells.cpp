// SPDX-License-Identifier: BSD-3-Clause
#include "ArrayFixture.h"
#include "CellText.h"
#include "EditorKind.h"
#include "QUIntValidator.h"
#include "QULongValidator.h"
#include "WfIntSlider.h"
#include "WfRealSlider.h"
#include "WfUIntSlider.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QPainter>
#include <QStandardItemModel>

#include <optional>

namespace {

template <class Number>
QString span(const char* what, Number from, Number to)
{
    if constexpr (std::is_floating_point_v<Number>)
        return QStringLiteral(" %1 %2..%3")
            .arg(QLatin1String(what))
            .arg(from, 0, 'g', 17)
            .arg(to, 0, 'g', 17);
    else
        return QStringLiteral(" %1 %2..%3").arg(QLatin1String(what)).arg(from).arg(to);
}

QString validatorOf(const QLineEdit* line)
{
    const QValidator* const any = line->validator();
    if (const auto* whole = qobject_cast<const QIntValidator*>(any))
        return span("int", whole->bottom(), whole->top());
    if (const auto* real = qobject_cast<const QDoubleValidator*>(any))
        return span("double", real->bottom(), real->top())
            + QStringLiteral(" %1 decimals").arg(real->decimals());
    if (const auto* small = dynamic_cast<const QUIntValidator*>(any))
        return span("QUInt", small->bottom(), small->top());
    if (const auto* large = dynamic_cast<const QULongValidator*>(any))
        return span("QULong", large->bottom(), large->top());
    return QString();
}

/// Class, range and limits of a cell's editor.
QString described(QWidget* editor)
{
    if (const auto* slider = dynamic_cast<WfIntSlider*>(editor))
        return span("WfIntSlider", slider->getMinimum(), slider->getMaximum())
            + validatorOf(slider->m_lineEdit);
    if (const auto* slider = dynamic_cast<WfRealSlider*>(editor))
        return span("WfRealSlider", slider->getMinimum(), slider->getMaximum())
            + validatorOf(slider->m_lineEdit);
    if (auto* slider = dynamic_cast<WfUIntSlider*>(editor)) {
        const QString range = span("WfUIntSlider", slider->getMinimum(), slider->getMaximum());
        slider->setValue(QStringLiteral("4294967295"));
        return range + QStringLiteral(" up to %1").arg(slider->getValue());
    }
    return u' ' + editor->objectName() + validatorOf(qobject_cast<QLineEdit*>(editor));
}

/// Notes what is stored, and under which role.
class RoleModel : public QStandardItemModel {
public:
    RoleModel()
        : QStandardItemModel(1, 4)
    {
    }
    bool setData(const QModelIndex&, const QVariant& value, int role) override
    {
        m_stored << value.toString() + QString::number(role);
        return true;
    }

    QStringList m_stored;
};

} // namespace

/// How a row table's delegate paints its cells, what it opens in them, and what it stores.
class TestTableCells : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        m_fixture.emplace();
    }
    void cleanup() { m_fixture.reset(); }

    void kindsFixTheEditor_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("onlyColumn");
        QTest::addColumn<QString>("oneOfTwo");
        const auto row = [](int kind, const char* onlyColumn, const char* oneOfTwo) {
            QTest::addRow("%d", kind) << kind << onlyColumn << oneOfTwo;
        };
        const auto line = [&row](int kind, const char* editor) { row(kind, editor, editor); };
        line(PlainTextKind, " qt_lineeditor");
        row(Int16Kind, " WfIntSlider 0..10 int -32768..32767", " qt_lineeditor int -32767..32767");
        row(UInt16Kind, " WfUIntSlider 0..10 up to 65535", " qt_lineeditor int 0..65535");
        line(WholeNumberKind, " qt_lineeditor int -2147483648..2147483647");
        line(UnsignedNumberKind, " qt_lineeditor QUInt 0..4294967295");
        row(Int32Kind, " WfIntSlider 0..10 int -2147483648..2147483647",
            " qt_lineeditor int -2147483647..2147483647");
        row(UInt32Kind, " WfUIntSlider 0..10 up to 4294967295",
            " qt_lineeditor QULong 0..4294967295");
        row(FloatKind,
            " WfRealSlider 0..10 double -3.4028234663852886e+38..3.4028234663852886e+38 6 decimals",
            " qt_lineeditor double -3.4028234663852886e+38..3.4028234663852886e+38 6 decimals");
        line(DoubleKind, " qt_lineeditor double -inf..inf -1 decimals");
    }

    void kindsFixTheEditor()
    {
        QFETCH(int, kind);
        QFETCH(QString, onlyColumn);
        QFETCH(QString, oneOfTwo);
        m_fixture->show("MFInt32", "[ 5 ]");
        const TableInput table = m_fixture->table();
        table->setEditorKind(kind);
        const auto editor = [&table] {
            return described(
                std::unique_ptr<QWidget>(table->itemDelegate()->createEditor(nullptr,
                                             QStyleOptionViewItem(), table->model()->index(0, 0)))
                    .get());
        };
        QCOMPARE(editor(), onlyColumn);
        table->setColumnCount(2);
        QCOMPARE(editor(), oneOfTwo);
    }

    void aCellIsPainted_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("room"); // beside the text, in pixels
        QTest::addColumn<bool>("isSelected");
        QTest::newRow("in the middle") << "MFString"
                                       << "[ \"word\" ]"
                                       << "word" << 50 << false;
        // Whatever the editor's alignment.
        QTest::newRow("vector") << "MFVec2s"
                                << "[ 7 8 ]"
                                << "7" << 50 << false;
        QTest::newRow("selected") << "MFString"
                                  << "[ \"word\" ]"
                                  << "word" << 50 << true;
        QTest::newRow("just fits") << "MFString"
                                   << "[ \"long text\" ]"
                                   << "long text" << 4 << false;
        QTest::newRow("cut") << "MFString"
                             << "[ \"long text\" ]"
                             << "long text" << 3 << false;
    }

    void aCellIsPainted()
    {
        QFETCH(QString, type);
        QFETCH(QString, values);
        QFETCH(QString, text);
        QFETCH(int, room);
        QFETCH(bool, isSelected);
        m_fixture->show(type, values);
        const QFontMetrics metrics = m_fixture->table()->fontMetrics();
        const auto advance
            = [&metrics](const QString& part) { return metrics.horizontalAdvance(part); };
        QStyleOptionViewItem option;
        option.rect = QRect(0, 0, advance(text) + room, 24);
        option.state.setFlag(QStyle::State_Selected, isSelected);
        const auto picture = [&](const auto& draw) {
            QImage image(option.rect.size(), QImage::Format_RGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            painter.setFont(m_fixture->table()->font());
            draw(painter);
            return image;
        };
        const QImage painted = picture([&](QPainter& painter) {
            m_fixture->table()->itemDelegate()->paint(
                &painter, option, m_fixture->table()->model()->index(0, 0));
        });
        const QImage expected = picture([&](QPainter& painter) {
            if (isSelected)
                painter.fillRect(option.rect, option.palette.highlight());
            painter.setPen(
                option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
            painter.drawText(option.rect, Qt::AlignCenter,
                room < 4 ? cellText(text, advance(text) - 1, advance) : text);
        });
        QCOMPARE(painted, expected);
    }

    void theTypedTextIsStored_data()
    {
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored"); // and the role
        QTest::addColumn<QString>("after");
        QTest::newRow("MFDouble") << "[ 5 ]"
                                  << "007"
                                  << "0070"
                                  << "[ 7 ]";
        // Refused, and stored all the same.
        QTest::newRow("MFVec2f") << "[ 5 6 ]"
                                 << "1e39"
                                 << "1e390"
                                 << "[ 5 6 ]";
        QTest::newRow("MFColor") << "[ 0 1 0 ]"
                                 << "0.50"
                                 << "0.502"
                                 << "[ 0.5 1 0 ]";
        QTest::newRow("MFColorRGBA") << "[ 0 1 0 1 ]"
                                     << "1.5"
                                     << "1.52"
                                     << "[ 0 1 0 1 ]";
    }

    void theTypedTextIsStored()
    {
        QFETCH(QString, values);
        QFETCH(QString, typed);
        QFETCH(QString, stored);
        QFETCH(QString, after);
        const KnField& field = m_fixture->show(QLatin1String(QTest::currentDataTag()), values);
        const TableInput table = m_fixture->table();
        const int column = table->columnCount() > 3 ? 1 : 0;
        RoleModel model;
        table->itemDelegate()->setModelData(
            table.type(0, column, typed), &model, model.index(0, column));
        QCOMPARE(model.m_stored, QStringList(stored));
        QCOMPARE(EditorFixture::text(&field), after);
    }

    void rowsThatAreGoneAreLeftAlone_data()
    {
        QTest::addColumn<QString>("values");
        QTest::newRow("MFInt32") << "[ 1, 2 ]";
        QTest::newRow("MFTime") << "[ 1, 2 ]";
        QTest::newRow("MFString") << "[ \"a\", \"b\" ]";
        QTest::newRow("MFVec3f") << "[ 1 2 3, 4 5 6 ]";
        QTest::newRow("MFColor") << "[ 1 0 0, 0 1 0 ]";
        QTest::newRow("MFMatrix") << "[ 1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 1 ]";
    }

    void rowsThatAreGoneAreLeftAlone()
    {
        QFETCH(QString, values);
        const KnField& field = m_fixture->show(QLatin1String(QTest::currentDataTag()), values);
        auto* const editor = static_cast<WfMFieldWidget*>(m_fixture->editor());
        const KbVec4f color;
        for (const int row : { -1, 2, 1'000'000 }) {
            editor->setFieldValue(row, 0, QStringLiteral("1"));
            editor->setFieldColor(row, &color);
            editor->swapFieldValues(row, 0);
            editor->swapFieldValues(0, row);
        }
        QCOMPARE(EditorFixture::text(&field), values);
        QCOMPARE(m_fixture->commands(), 0);
    }

private:
    std::optional<ArrayFixture> m_fixture;
};

QTEST_MAIN(TestTableCells)
#include "test_table_cells.moc"
