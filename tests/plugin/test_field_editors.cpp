// SPDX-License-Identifier: BSD-3-Clause
#include "EditorRow.h"

#include <QAbstractButton>
#include <QLabel>
#include <QUndoStack>

namespace {

std::vector<EditorRow> allRows()
{
    std::vector<EditorRow> rows = singleValueRows();
    for (const EditorRow& row : compoundRows())
        rows.push_back(row);
    for (const EditorRow& row : arrayRows())
        rows.push_back(row);
    return rows;
}

QString toText(const char* text) { return QString::fromUtf8(text); }

} // namespace

Q_DECLARE_METATYPE(EditorRow)

/// The road that every field editor passes.
class TestFieldEditors : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void road_data()
    {
        QTest::addColumn<EditorRow>("row");
        for (const EditorRow& row : allRows())
            QTest::newRow(row.type) << row;
    }
    void road()
    {
        QFETCH(EditorRow, row);
        EditorFixture fixture;
        KnField* const field = fixture.field(row.type);
        KnField* const other = fixture.otherField(row.type);
        QUndoStack& stack = fixture.undoStack();
        QVERIFY2(field && other, row.type);
        const QString defaultText = EditorFixture::text(other);

        // Opening shows the field and writes nothing.
        QVERIFY(field->set(row.start));
        const QString start = EditorFixture::text(field);
        fixture.select(field);
        QVERIFY(fixture.editor());
        QCOMPARE(fixture.editor()->objectName(), toText(row.editor));
        QVERIFY(fixture.editor()->getFrame()->isVisible());
        QCOMPARE(row.shown(fixture), toText(row.shownAtStart));
        QCOMPARE(EditorFixture::text(field), start);
        QCOMPARE(stack.count(), 0);

        // A person's edit writes, and goes back and forth.
        row.edit(fixture);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(field), toText(row.edited));
        QCOMPARE(row.shown(fixture), toText(row.shownEdited));
        QCOMPARE(stack.count(), row.commands);
        if (row.commands > 0) {
            for (int i = 0; i < row.commands; ++i)
                fixture.undo();
            QCOMPARE(EditorFixture::text(field), start);
            QCOMPARE(row.shown(fixture), toText(row.shownAtStart));
            for (int i = 0; i < row.commands; ++i)
                fixture.redo();
            QCOMPARE(EditorFixture::text(field), toText(row.edited));
        }

        // A change from outside shows and makes no command.
        EditorFixture::write(field, row.outside);
        const QString outside = EditorFixture::text(field);
        QCOMPARE(row.shown(fixture), toText(row.shownOutside));
        QCOMPARE(stack.count(), row.commands);

        QTest::mouseClick(fixture.child<QAbstractButton>("m_defaultButton"), Qt::LeftButton);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(field), defaultText);
        QCOMPARE(stack.count(), row.commands + 1);
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
        QCOMPARE(fixture.editor()->objectName(), toText(row.editor));
        QCOMPARE(row.shown(fixture), toText(row.shownAtStart));
        QVERIFY(ignore->isChecked());
        QCOMPARE(EditorFixture::text(field), outside);
        QCOMPARE(EditorFixture::text(other), start);
        QCOMPARE(stack.index(), commands);
        QTest::mouseClick(ignore, Qt::LeftButton);
        EditorFixture::settle();
        QVERIFY(!other->isIgnored() && !ignore->isChecked());
        QCOMPARE(stack.index(), commands + 1);
    }

    void theIgnoreButtonActsWhenItIsReleased_data()
    {
        QTest::addColumn<QString>("type");
        QTest::newRow("single") << QStringLiteral("SFBool");
        QTest::newRow("array") << QStringLiteral("MFInt32");
    }
    void theIgnoreButtonActsWhenItIsReleased()
    {
        QFETCH(QString, type);
        EditorFixture fixture;
        KnField* const field = fixture.field(qPrintable(type));
        fixture.select(field);
        auto* const ignore = fixture.child<QAbstractButton>("m_ignoreButton");
        bool wasIgnored = false;
        connect(ignore, &QAbstractButton::released, this,
            [&wasIgnored, field] { wasIgnored = field->isIgnored(); });
        QTest::mousePress(ignore, Qt::LeftButton);
        QVERIFY(!field->isIgnored());
        QTest::mouseRelease(ignore, Qt::LeftButton);
        QVERIFY(wasIgnored); // before the button was clicked
        QCOMPARE(fixture.undoStack().count(), 1);
    }

    void anIgnoredFieldIsEditedAsAnyOther()
    {
        EditorFixture fixture;
        KnSFBool& field = fixture.node().SFBool;
        field.setIgnored(1);
        fixture.select(&field);
        QTest::mouseClick(fixture.child<QAbstractButton>("m_box"), Qt::LeftButton);
        QVERIFY(field.getValue() && field.isIgnored());
    }

    void theDefaultOfAFieldThatHoldsItMakesACommand()
    {
        EditorFixture fixture;
        fixture.select(fixture.field("SFBool"));
        QTest::mouseClick(fixture.child<QAbstractButton>("m_defaultButton"), Qt::LeftButton);
        QCOMPARE(fixture.undoStack().count(), 1);
    }

    void aFieldWithoutANodeHasNoDefault()
    {
        KnSFBool alone;
        alone.setValue(true);
        EditorFixture fixture;
        fixture.select(&alone);
        QTest::mouseClick(fixture.child<QAbstractButton>("m_defaultButton"), Qt::LeftButton);
        QVERIFY(alone.getValue());
        QCOMPARE(fixture.undoStack().count(), 0);
        fixture.select(nullptr);
    }

    void theFirstLabelWins()
    {
        checkLabel<WfSFBoolWidget>();
        checkLabel<WfMFInt32Widget>();
    }

private:
    template <class Editor>
    static void checkLabel()
    {
        Editor editor("given");
        QCOMPARE(editor.objectName(), QStringLiteral("given"));
        editor.setLabel(QStringLiteral("mine"));
        editor.setLabel(QStringLiteral("theirs"));
        editor.load();
        const auto* const label
            = editor.getFrame()->template findChild<QLabel*>(QStringLiteral("m_label"));
        QCOMPARE(label->text(), QStringLiteral("<p align=\"center\">mine</p>"));
        editor.unload();
    }
};

QTEST_MAIN(TestFieldEditors)
#include "test_field_editors.moc"
