// SPDX-License-Identifier: BSD-3-Clause
#include "PropertyEdits.h"

#include "CrvServices.h"
#include "EditorInput.h"
#include "KnField.h"
#include "KnSFBitMask.h"
#include "PropertySnapshot.h"
#include "SafeClasses.h"

#include <QMetaProperty>
#include <QPointer>
#include <QUndoStack>

namespace {

/// One property of one object.
class EditedProperty {
public:
    EditedProperty(QObject* object, const QMetaProperty& property)
        : m_object(object)
        , m_property(property)
    {
    }

    bool isAlive() const { return m_object; }
    QVariant value() const { return m_object ? m_property.read(m_object) : QVariant(); }
    QString name() const
    {
        return QStringLiteral("%1.%2").arg(
            QLatin1String(m_object ? m_object->metaObject()->className() : "dead"),
            QLatin1String(m_property.name()));
    }

private:
    const QPointer<QObject> m_object;
    const QMetaProperty m_property;
};

class Editing {
public:
    Editing(InspectorInput& input, EditResult& result)
        : m_input(input)
        , m_result(result)
    {
    }

    void editAll(QObject* object)
    {
        if (!m_input.clickObject(object)) {
            m_result.faults
                += QStringLiteral("%1 \"%2\" isn't to be found in the tree")
                       .arg(QLatin1String(object->metaObject()->className()), object->objectName());
            return;
        }
        ++m_result.objects;
        const QPointer<QObject> alive(object);
        const QMetaObject* const meta = object->metaObject();
        for (int i = 0; i < meta->propertyCount() && alive; ++i) {
            const QMetaProperty property = meta->property(i);
            if (property.isWritable() && property.isReadable())
                edit(EditedProperty(object, property), QLatin1String(property.name()));
        }
    }

private:
    void edit(const EditedProperty& property, QLatin1String name)
    {
        const QVariant before = property.value();
        if (!m_input.clickField(name)) {
            fault(property, QStringLiteral("isn't in the list"));
            return;
        }
        if (!isSameValue(property.value(), before))
            fault(property, QStringLiteral("written by a click on its row"));
        if (m_input.field()->isReadOnly()) {
            note(property, QStringLiteral("shown only"));
            return;
        }
        QWidget* const editor = m_input.editor();
        QUndoStack& stack = *CrvServices::getInstance()->getUndoStack();
        const int steps = stack.index();
        if (name == QLatin1String("pixmap")) {
            note(property, QStringLiteral("left out, since a picture comes from a file"));
            return;
        }
        if (!editor || !editByInput(editor, before)) {
            fault(property, QStringLiteral("has nothing to edit it with"));
            return;
        }
        const QVariant after = property.value();
        if (isSameValue(after, before)) {
            const char* const reason = whyKept(name);
            if (reason)
                note(property, QStringLiteral("kept, %1").arg(QLatin1String(reason)));
            else
                fault(property, QStringLiteral("still %1 after an edit").arg(textOf(before)));
            go(steps);
            return;
        }
        const int made = stack.index() - steps;
        if (made == 0
            && m_input.field()->getObjectType().isDerivedFrom(KnSFBitMask::getClassTypeId())) {
            // The editor of masks writes without a command; the same click takes it back.
            editByInput(editor, after);
            compare(property, before, "the second click");
            ++m_result.edited;
            return;
        }
        if (made != 1)
            fault(property, QStringLiteral("one edit made %1 steps").arg(made));
        go(steps);
        compare(property, before, "undo");
        go(steps + made);
        compare(property, after, "redo");
        go(steps);
        compare(property, before, "the second undo");
        ++m_result.edited;
    }

    /// By keys, to a place on the undo stack.
    void go(int index)
    {
        const QUndoStack& stack = *CrvServices::getInstance()->getUndoStack();
        for (int left = 20; stack.index() > index && left > 0; --left)
            m_input.undo();
        for (int left = 20; stack.index() < index && left > 0; --left)
            m_input.redo();
    }

    void compare(const EditedProperty& property, const QVariant& wanted, const char* by)
    {
        const QVariant value = property.value();
        if (!isSameValue(value, wanted)) {
            fault(property,
                QStringLiteral("%1 by %2 instead of %3")
                    .arg(textOf(value), QLatin1String(by), textOf(wanted)));
        }
    }

    void note(const EditedProperty& property, const QString& text)
    {
        m_result.notes += property.name() + QStringLiteral(": ") + text;
    }
    void fault(const EditedProperty& property, const QString& text)
    {
        m_result.faults += property.name() + QStringLiteral(": ") + text;
    }

    InspectorInput& m_input;
    EditResult& m_result;
};

} // namespace

EditResult editSafeProperties(InspectorInput& input)
{
    EditResult result;
    input.activate();
    Editing editing(input, result);
    const QList<QPointer<QObject>> objects = safeObjects();
    for (const QPointer<QObject>& object : objects) {
        if (object)
            editing.editAll(object);
    }
    return result;
}
