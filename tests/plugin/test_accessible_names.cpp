// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"
#include "TextRows.h"

#include <QAccessible>

using namespace Qt::StringLiterals;

namespace {

bool isControl(QAccessible::Role role)
{
    const QList<QAccessible::Role> roles { QAccessible::EditableText, QAccessible::CheckBox,
        QAccessible::PushButton, QAccessible::ComboBox, QAccessible::SpinBox, QAccessible::Slider,
        QAccessible::Table };
    return roles.contains(role);
}

/// The names of all controls below, popups included, that a person can operate.
void addNames(const QWidget* parent, QStringList& names)
{
    for (QWidget* widget : parent->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const QAccessibleInterface* const control = QAccessible::queryAccessibleInterface(widget);
        if (control && isControl(control->role()) && !widget->focusProxy())
            names += control->text(QAccessible::Name);
        else
            addNames(widget, names);
    }
}

} // namespace

/// What a screen reader calls the controls of an editor.
class TestAccessibleNames : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void eachControlHasANameOfItsOwn_data() { addEditorRows(); }
    void eachControlHasANameOfItsOwn()
    {
        QFETCH(EditorCase, row);
        write(field(row.type), row.start);
        select(field(row.type));
        QStringList names;
        addNames(editor()->getFrame(), names);
        QVERIFY(names.size() >= 2); // the two buttons that all have
        for (const QString& name : std::as_const(names)) {
            QVERIFY2(!name.trimmed().isEmpty(), qPrintable(names.join(u'|')));
            QVERIFY2(names.count(name) == 1, qPrintable(names.join(u'|')));
        }
    }

    void aLetterIsNamedAfterItsField_data()
    {
        addTextRows({ { "SFVec3f", "SFVec3f x|SFVec3f y|SFVec3f z" },
            { "SFColorRGBA", "SFColorRGBA colour|SFColorRGBA R|SFColorRGBA A" },
            { "SFVec2i32", "SFVec2i32 x|SFVec2i32 y" },
            { "SFFloat", "SFFloat|SFFloat slider|SFFloat follows the slider" } });
    }
    void aLetterIsNamedAfterItsField()
    {
        const auto [type, names] = textRow<2>();
        select(field(qPrintable(type)));
        QStringList found;
        addNames(editor()->getFrame(), found);
        for (const QString& name : names.split(u'|'))
            QVERIFY2(found.contains(name), qPrintable(found.join(u'|')));
    }

    void aCellIsNamedAfterItsPlace()
    {
        KnField& array = show("MFVec3f", "[ 1 2 3, 4 5 6 ]");
        Q_UNUSED(array)
        QTableWidget* const cells = child<WfMFieldTable>("m_table");
        cells->setFocus();
        cells->setCurrentCell(1, 1);
        press(Qt::Key_F2);
        const QWidget* const focus = QApplication::focusWidget();
        QVERIFY(qobject_cast<const QLineEdit*>(focus));
        QCOMPARE(focus->accessibleName(), u"row 2 y"_s);
    }
};

QTEST_MAIN(TestAccessibleNames)
#include "test_accessible_names.moc"
