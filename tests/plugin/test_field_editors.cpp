// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"

#include <QAbstractButton>
#include <QUndoStack>

namespace {

/// A text of a case, or that of the field if there is none.
QString orText(const char* text, const char* fieldText)
{
    return QString::fromUtf8(text ? text : fieldText);
}

} // namespace

/// The road that every field editor passes.
class TestFieldEditors : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void road_data() { addRows({ singleValueCases(), compoundCases(), arrayCases() }); }
    void road()
    {
        QFETCH(EditorCase, row);
        EditorFixture fixture;
        KnField* const field = fixture.field(row.type);
        KnField* const other = fixture.otherField(row.type);
        QUndoStack& stack = fixture.undoStack();
        QVERIFY2(field && other, row.type);
        const QString shownAtStart = orText(row.shownAtStart, row.start);
        const QString defaultText = EditorFixture::text(other);

        // Opening shows the field and writes nothing.
        QVERIFY(field->set(row.start));
        const QString start = EditorFixture::text(field);
        fixture.select(field);
        QVERIFY(fixture.editor());
        QCOMPARE(fixture.editor()->objectName(), row.editorName());
        QVERIFY(fixture.editor()->getFrame()->isVisible());
        QCOMPARE(row.shown(fixture), shownAtStart);
        QCOMPARE(EditorFixture::text(field), start);
        QCOMPARE(stack.count(), 0);

        // A person's edit writes, and goes back and forth.
        row.edit(fixture);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(field), QLatin1String(row.edited));
        QCOMPARE(row.shown(fixture), orText(row.shownEdited, row.edited));
        QCOMPARE(stack.count(), row.commands);
        if (row.commands > 0) {
            for (int i = 0; i < row.commands; ++i)
                fixture.undo();
            QCOMPARE(EditorFixture::text(field), start);
            QCOMPARE(row.shown(fixture), shownAtStart);
            for (int i = 0; i < row.commands; ++i)
                fixture.redo();
            QCOMPARE(EditorFixture::text(field), QLatin1String(row.edited));
        }

        // A change from outside shows and makes no command.
        EditorFixture::write(field, row.outside);
        const QString outside = EditorFixture::text(field);
        QCOMPARE(row.shown(fixture), orText(row.shownOutside, row.outside));
        QCOMPARE(stack.count(), row.commands);

        QTest::mouseClick(fixture.child<QAbstractButton>("m_defaultButton"), Qt::LeftButton);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(field), defaultText);
        QCOMPARE(stack.count(), row.commands + 1);
        fixture.undo();
        fixture.redo();
        QCOMPARE(EditorFixture::text(field), defaultText);
        fixture.undo();
        QCOMPARE(EditorFixture::text(field), outside);

        auto* const ignore = fixture.child<QAbstractButton>("m_ignoreButton");
        QTest::mouseClick(ignore, Qt::LeftButton);
        EditorFixture::settle();
        QVERIFY(field->isIgnored() && ignore->isChecked());
        fixture.undo();
        QVERIFY(!field->isIgnored() && !ignore->isChecked());

        // Another field of the type takes the editor over; neither is written.
        QVERIFY(other->set(row.start));
        other->setIgnored(1);
        // The lines that hold a text as it is write it whenever they are left.
        static const QSet<QByteArray> texts { "SFFilePathString", "SFName", "SFString" };
        const int commands = stack.index() + (texts.contains(row.type) ? 1 : 0);
        fixture.select(other);
        QCOMPARE(fixture.editor()->objectName(), row.editorName());
        QCOMPARE(row.shown(fixture), shownAtStart);
        QVERIFY(ignore->isChecked());
        QCOMPARE(EditorFixture::text(field), outside);
        QCOMPARE(EditorFixture::text(other), start);
        QCOMPARE(stack.index(), commands);
        QTest::mouseClick(ignore, Qt::LeftButton);
        EditorFixture::settle();
        QVERIFY(!other->isIgnored() && !ignore->isChecked());
        QCOMPARE(stack.index(), commands + 1);
    }

    void theIgnoreButtonActsWhenItIsReleased()
    {
        EditorFixture fixture;
        KnField* const field = fixture.field("MFInt32");
        fixture.select(field);
        auto* const ignore = fixture.child<QAbstractButton>("m_ignoreButton");
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
