// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"
#include "TextRows.h"

#include <QLineEdit>
#include <QSpinBox>
#include <QWheelEvent>

namespace {

void turnWheel(QWidget* widget)
{
    const QPointF center = widget->rect().center();
    QWheelEvent event(center, widget->mapToGlobal(center), {}, { 0, 120 }, Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

using namespace Qt::StringLiterals;

/// A field that a person can't write: neither mouse nor keys reach it, and what is only to be read
/// stays usable.
class TestReadOnlyEditors : public EditorFixture {
    Q_OBJECT

    /// Whatever a person may try, on everything that the editor has.
    void tryEverything()
    {
        QFrame* const frame = editor()->getFrame();
        if (auto* const open = frame->findChild<QAbstractButton*>(QStringLiteral("m_editButton")))
            QTest::mouseClick(open, Qt::LeftButton);
        QList<QPointer<QWidget>> widgets;
        for (QWidget* const widget : frame->findChildren<QWidget*>())
            widgets.append(widget);
        for (const QPointer<QWidget>& widget : std::as_const(widgets)) {
            if (!widget || !widget->isVisible() || widget->objectName() == u"m_editButton")
                continue;
            QTest::mouseClick(widget, Qt::LeftButton);
            QTest::mouseDClick(widget, Qt::LeftButton);
            for (const int key : { Qt::Key_5, Qt::Key_Space, Qt::Key_Up, Qt::Key_PageDown,
                     Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Delete, Qt::Key_Return }) {
                if (widget)
                    QTest::keyClick(widget, static_cast<Qt::Key>(key));
            }
            if (widget)
                turnWheel(widget);
        }
        settle();
    }

private Q_SLOTS:
    void nothingWrites_data() { addEditorRows(); }
    void nothingWrites()
    {
        QFETCH(EditorCase, row);
        KnField& field = show(row.type, row.start);
        const QString start = text(&field);
        // Also one that is shown already.
        field.setReadOnly(true);
        settle();
        tryEverything();
        select(otherField(row.type));
        otherField(row.type)->setReadOnly(true);
        select(&field);
        tryEverything();
        QCOMPARE(text(&field), start);
        QVERIFY(!field.isIgnored());
        QCOMPARE(commands(), 0);
        QVERIFY(!child<QWidget>("m_defaultButton")->isEnabled());
        QVERIFY(!child<QWidget>("m_ignoreButton")->isEnabled());

        // The same widgets work as ever once a field may be written.
        select(nullptr);
        field.setReadOnly(false);
        select(&field);
        row.edit(*this);
        settle();
        QCOMPARE(text(&field), QLatin1String(row.edited));
        QCOMPARE(commands(), row.commands);
        clickButton("m_defaultButton");
        QCOMPARE(commands(), row.commands + 1);
    }

    void textsCanBeCopied_data()
    {
        addTextRows({ { "SFString", "\"a b\"", "lineEdit", "a b" },
            { "SFInt32", "42", "m_lineEdit", "42" }, { "SFVec3f", "1 2 3.5", "SFVec3fLine", "3.5" },
            { "SFVec2i32", "1 7", "qt_spinbox_lineedit", "7" } });
    }
    void textsCanBeCopied()
    {
        const auto [type, start, line, copied] = textRow<4>();
        field(qPrintable(type))->setReadOnly(false);
        KnField& shown = show(type, start);
        shown.setReadOnly(true);
        settle();
        auto* const input = editor()->getFrame()->findChildren<QLineEdit*>(line).last();
        QTest::keyClick(input, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(input->selectedText(), copied);
    }

    void rowsCanBeLookedAt()
    {
        KnField& shown = show("MFInt32", "[ 1, 2, 3 ]");
        shown.setReadOnly(true);
        settle();
        QTest::keyClick(child<QSpinBox>("m_accessBox"), Qt::Key_Up);
        QCOMPARE(table()->currentRow(), 1);
        table().click(2, 0);
        QCOMPARE(table()->currentRow(), 2);
        QVERIFY(!table().openEditor());
    }

    void aMatrixIsShownInItsPopup()
    {
        KnField& shown = show("SFMatrix", "1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 1");
        shown.setReadOnly(true);
        settle();
        QVERIFY(openPopup());
        QCOMPARE(linesShown("m_lineEdits"), u"1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 1"_s);
        press(Qt::Key_Escape);
    }

    /// What was being typed as the field was locked is dropped.
    void anOpenCellIsDropped()
    {
        KnField& shown = show("MFInt32", "[ 1, 2, 3 ]");
        table().type(1, 0, u"7"_s);
        shown.setReadOnly(true);
        settle();
        QVERIFY(!table().openEditor());
        QCOMPARE(text(&shown), u"[ 1, 2, 3 ]"_s);
    }
};

QTEST_MAIN(TestReadOnlyEditors)
#include "test_read_only_editors.moc"
