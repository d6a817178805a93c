// SPDX-License-Identifier: BSD-3-Clause
#include "TransformEditor.h"

#include "CrvCommand.h"
#include "CrvServices.h"
#include "KnTransform.h"

#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace {

/// Gives a field a new text; undo gives it the old one.
class SetText : public CrvCommand {
public:
    SetText(KnField& field, const char* text)
        : m_field(field)
        , m_text(text)
    {
        m_field.get(m_oldText);
    }

    void execute() override { m_field.set(m_text); }
    void undo() override { m_field.set(m_oldText); }
    void redo() override { execute(); }

private:
    KnField& m_field; // the host empties its undo stack before the field goes away
    KbString m_text;
    KbString m_oldText;
};

} // namespace

TransformEditor::TransformEditor()
    : m_sensor(translationChanged, this)
{
    m_name = "Example Transform Editor";
    m_description = "Shows how to add an editor for a node type.";
    m_author = "Orbel";
    m_version = "1.0.0";
    m_handledType = KnTransform::getClassTypeId();
    m_widget = &m_frame;
}

void TransformEditor::load()
{
    CrvEditor::load();
    m_distance = new QLabel(&m_frame);
    m_distance->setObjectName(QStringLiteral("distance"));
    auto* const button = new QPushButton(tr("Move back"), &m_frame);
    button->setObjectName(QStringLiteral("moveBack"));
    auto* const layout = new QVBoxLayout(&m_frame);
    layout->addWidget(m_distance);
    layout->addWidget(button);
    layout->addStretch();
    connect(button, &QPushButton::clicked, this, &TransformEditor::moveBack);
}

// The dock has set the edited object before it calls this.
void TransformEditor::activate()
{
    CrvEditor::activate();
    if (!transform())
        return;
    m_sensor.attach(&transform()->translation);
    refresh();
    m_frame.show();
}

void TransformEditor::deactivate()
{
    CrvEditor::deactivate();
    m_sensor.detach();
    m_frame.hide();
}

void TransformEditor::translationChanged(void* data, KnSensor*)
{
    static_cast<TransformEditor*>(data)->refresh();
}

KnTransform* TransformEditor::transform() const
{
    return dynamic_cast<KnTransform*>(getEditedObject());
}

void TransformEditor::refresh()
{
    const KbVec3f& t = transform()->translation.getValue();
    m_distance->setText(
        tr("Moved by %1 from the origin").arg(QLocale::c().toString(std::hypot(t[0], t[1], t[2]))));
}

void TransformEditor::moveBack()
{
    // The host owns the command from here on.
    CrvServices::getInstance()->executeCommand(new SetText(transform()->translation, "0 0 0"));
}
