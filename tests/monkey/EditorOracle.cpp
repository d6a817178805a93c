// SPDX-License-Identifier: BSD-3-Clause
#include "EditorOracle.h"

#include "CrvDefaults.h"
#include "CrvPluginsManager.h"
#include "CrvServices.h"
#include "KnField.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

#include <map>

using namespace Qt::StringLiterals;

namespace {

/// What a person sees of one widget; empty if nothing of the field. The range of a slider grows
/// with what it has shown before, so its handle may stand elsewhere.
QString stateOf(const QWidget* widget)
{
    QString state;
    if (const auto* const line = qobject_cast<const QLineEdit*>(widget))
        state = line->text();
    else if (const auto* const box = qobject_cast<const QComboBox*>(widget))
        state = u"%1 of %2"_s.arg(box->currentText()).arg(box->count());
    else if (const auto* const check = qobject_cast<const QCheckBox*>(widget))
        state = QString::number(check->checkState());
    else if (const auto* const button = qobject_cast<const QAbstractButton*>(widget))
        state = button->text() + (button->isChecked() ? u" down"_s : QString());
    else if (const auto* const table = qobject_cast<const QTableView*>(widget))
        state = u"%1 rows"_s.arg(table->model()->rowCount());
    else if (const auto* const label = qobject_cast<const QLabel*>(widget))
        state = label->text();
    else
        return {};
    return state + (widget->isEnabled() ? u""_s : u" (disabled)"_s);
}

/// The boxes of a bit mask show it as it was when the field was selected, by design.
bool isFrozen(const QWidget* widget) { return widget->objectName() == "m_checkBoxes"_L1; }

/// By name and number, in the order in which they were made.
std::map<QString, QString> statesIn(const QWidget* frame)
{
    std::map<QString, QString> states;
    for (const QWidget* widget : frame->findChildren<QWidget*>()) {
        if (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_"_L1)
            || isFrozen(widget))
            continue;
        const QString state = stateOf(widget);
        if (state.isEmpty())
            continue;
        QString name = widget->objectName();
        for (int i = 2; states.contains(name); ++i)
            name = widget->objectName() + u'#' + QString::number(i);
        states[name] = state;
    }
    return states;
}

/// Whether an input may hold what hasn't been written yet.
bool isInUse(const QWidget* frame)
{
    for (const QLineEdit* line : frame->findChildren<QLineEdit*>()) {
        if (line->isModified())
            return true;
    }
    for (const QAbstractSlider* slider : frame->findChildren<QAbstractSlider*>()) {
        if (slider->isSliderDown())
            return true;
    }
    for (const QTableView* table : frame->findChildren<QTableView*>()) {
        if (!table->viewport()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).isEmpty())
            return true;
    }
    return QApplication::activePopupWidget() || QApplication::activeModalWidget();
}

/// The name of the editor that a widget belongs to; empty if it is none of the plug-ins' editors.
QString editorWith(const QWidget* widget)
{
    for (const CrvExtension* extension : CrvPluginsManager::getInstance()->getExtensions()) {
        const auto* const editor = qobject_cast<const CrvEditor*>(extension);
        if (editor && editor->getWidget() == widget)
            return editor->objectName();
    }
    return {};
}

} // namespace

EditorOracle::EditorOracle()
    : m_hidden(std::make_unique<QWidget>())
    , m_plugin(std::make_unique<CrvDefaults>())
{
    m_plugin->load();
    for (CrvExtension* extension : m_plugin->getExtensions()) {
        if (auto* const editor = qobject_cast<CrvFieldEditors*>(extension))
            m_references.push_back({ editor, false });
    }
}

EditorOracle::~EditorOracle()
{
    for (const Reference& reference : m_references) {
        if (reference.isLoaded)
            reference.editor->unload();
    }
    m_plugin->unload();
}

CrvFieldEditors* EditorOracle::referenceFor(const QString& name)
{
    for (Reference& reference : m_references) {
        if (reference.editor->objectName() != name)
            continue;
        if (!reference.isLoaded)
            reference.editor->load();
        reference.isLoaded = true;
        return reference.editor;
    }
    return nullptr;
}

/// A slider that doesn't write at each move may stand anywhere, also once it writes again.
bool EditorOracle::mayStandAnywhere(const KnField* field, const QWidget* frame)
{
    if (m_loose != field)
        m_loose = nullptr;
    for (const QCheckBox* box : frame->findChildren<QCheckBox*>(u"m_notifyCheckBox"_s)) {
        if (!box->isChecked())
            m_loose = field;
    }
    return m_loose;
}

QString EditorOracle::check(QWidget* window)
{
    KnField* const field = CrvServices::getInstance()->getSelectedField();
    const auto* const dock = window->findChild<QDockWidget*>(u"Field Editor"_s);
    const QWidget* const shown = dock ? dock->widget() : nullptr;
    if (!shown)
        m_loose = nullptr;
    if (!field || !shown || mayStandAnywhere(field, shown) || isInUse(shown))
        return {};
    const QString editor = editorWith(shown);
    CrvFieldEditors* const reference = referenceFor(editor);
    if (!reference)
        return {};
    reference->getFrame()->setParent(m_hidden.get());
    reference->setEditedObject(field);
    reference->attachField(field);
    reference->updateFromField();
    const std::map<QString, QString> wanted = statesIn(reference->getFrame());
    const std::map<QString, QString> found = statesIn(shown);
    reference->deactivate();
    reference->setEditedObject(nullptr);
    reference->getFrame()->setParent(nullptr);
    ++m_comparisons;
    for (const auto& [name, state] : wanted) {
        const auto same = found.find(name);
        if (same == found.end() || same->second != state)
            return u"%1 shows %2 in %3 where a fresh one shows %4"_s.arg(editor,
                same == found.end() ? u"nothing"_s : u'"' + same->second + u'"', name,
                u'"' + state + u'"');
    }
    return {};
}
