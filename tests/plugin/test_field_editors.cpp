// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"

namespace {

/// A text of a case, or that of the field if there is none.
QString orText(const char* text, const char* fieldText)
{
    return QString::fromUtf8(text ? text : fieldText);
}

} // namespace

/// The road that every field editor passes.
class TestFieldEditors : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void road_data() { addEditorRows(); }
    void road()
    {
        QFETCH(EditorCase, row);
        KnField* const field = this->field(row.type);
        KnField* const other = otherField(row.type);
        QUndoStack& stack = undoStack();
        QVERIFY2(field && other, row.type);
        const QString shownAtStart = orText(row.shownAtStart, row.start);
        const QString defaultText = text(other);

        // Opening shows the field and writes nothing.
        QVERIFY(field->set(row.start));
        const QString start = text(field);
        select(field);
        QVERIFY(editor());
        QCOMPARE(editor()->objectName(), row.editorName());
        QVERIFY(editor()->getFrame()->isVisible());
        QCOMPARE(row.shown(*this), shownAtStart);
        QCOMPARE(text(field), start);
        QCOMPARE(stack.count(), 0);

        // A person's edit writes, and goes back and forth.
        row.edit(*this);
        settle();
        QCOMPARE(text(field), QLatin1String(row.edited));
        QCOMPARE(row.shown(*this), orText(row.shownEdited, row.edited));
        QCOMPARE(stack.count(), row.commands);
        if (row.commands > 0) {
            for (int i = 0; i < row.commands; ++i)
                undo();
            QCOMPARE(text(field), start);
            QCOMPARE(row.shown(*this), shownAtStart);
            for (int i = 0; i < row.commands; ++i)
                redo();
            QCOMPARE(text(field), QLatin1String(row.edited));
        }

        // A change from outside shows and makes no command.
        write(field, row.outside);
        const QString outside = text(field);
        QCOMPARE(row.shown(*this), orText(row.shownOutside, row.outside));
        QCOMPARE(stack.count(), row.commands);

        QTest::mouseClick(child<QAbstractButton>("m_defaultButton"), Qt::LeftButton);
        settle();
        QCOMPARE(text(field), defaultText);
        QCOMPARE(stack.count(), row.commands + 1);
        undo();
        redo();
        QCOMPARE(text(field), defaultText);
        undo();
        QCOMPARE(text(field), outside);

        auto* const ignore = child<QAbstractButton>("m_ignoreButton");
        QTest::mouseClick(ignore, Qt::LeftButton);
        settle();
        QVERIFY(field->isIgnored() && ignore->isChecked());
        undo();
        QVERIFY(!field->isIgnored() && !ignore->isChecked());

        // Another field of the type takes the editor over; neither is written.
        QVERIFY(other->set(row.start));
        other->setIgnored(1);
        // The lines that hold a text as it is write it whenever they are left.
        static const QSet<QByteArray> texts { "SFFilePathString", "SFName", "SFString" };
        const int commands = stack.index() + (texts.contains(row.type) ? 1 : 0);
        select(other);
        QCOMPARE(editor()->objectName(), row.editorName());
        QCOMPARE(row.shown(*this), shownAtStart);
        QVERIFY(ignore->isChecked());
        QCOMPARE(text(field), outside);
        QCOMPARE(text(other), start);
        QCOMPARE(stack.index(), commands);
        QTest::mouseClick(ignore, Qt::LeftButton);
        settle();
        QVERIFY(!other->isIgnored() && !ignore->isChecked());
        QCOMPARE(stack.index(), commands + 1);
    }

    void theIgnoreButtonActsWhenItIsReleased()
    {
        KnField* const field = this->field("MFInt32");
        select(field);
        auto* const ignore = child<QAbstractButton>("m_ignoreButton");
        bool wasIgnored = false;
        connect(ignore, &QAbstractButton::released, this,
            [&wasIgnored, field] { wasIgnored = field->isIgnored(); });
        QTest::mousePress(ignore, Qt::LeftButton);
        QTest::mouseRelease(ignore, Qt::LeftButton);
        QVERIFY(wasIgnored); // before the button was clicked
    }
};

QTEST_MAIN(TestFieldEditors)
#include "test_field_editors.moc"
