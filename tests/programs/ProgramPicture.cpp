// SPDX-License-Identifier: BSD-3-Clause
#include "ProgramPicture.h"

#include "EditorInput.h"

#include <QDockWidget>
#include <QLineEdit>
#include <QPainter>
#include <QTest>
#include <QTreeView>

namespace {

// In pixels.
constexpr QSize pictureSize(1500, 620);
constexpr int programWidth = 690;
constexpr int gap = 8;

constexpr int valueColumn = 2;

QWidget* named(const char* name)
{
    for (QObject* const object : InspectorInput::programObjects()) {
        if (object->isWidgetType() && object->objectName() == QLatin1String(name))
            return static_cast<QWidget*>(object);
    }
    return nullptr;
}

/// Types into the editor of a field of a widget of the form.
bool type(InspectorInput& input, const char* widget, const char* field, const QString& text)
{
    QWidget* const object = named(widget);
    if (!object)
        return false;
    // As a person finds a widget whose name they don't know.
    QTest::mouseClick(object, Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier);
    settle();
    if (input.object() != object || !input.clickField(QLatin1String(field)) || !input.editor())
        return false;
    typeInto(input.editor()->findChild<QLineEdit*>(), text);
    settle();
    return object->property(field).toString() == text;
}

QStringList rowsOf(const QTreeView* list)
{
    QStringList values;
    for (int row = 0; row < list->model()->rowCount(); ++row)
        values += list->model()->index(row, valueColumn).data().toString();
    return values;
}

/// Closes what would hide the form or stand beside the matter.
void makeRoom(QWidget* window)
{
    const QStringList names { QStringLiteral("qt_designer_objectinspector_dock"),
        QStringLiteral("qt_designer_propertyeditor_dock"),
        QStringLiteral("qt_designer_resourceeditor_dock"),
        QStringLiteral("qt_designer_actioneditor_dock"),
        QStringLiteral("qt_designer_signalsloteditor_dock"), QStringLiteral("Console") };
    const QList<QDockWidget*> docks = window->findChildren<QDockWidget*>();
    for (QDockWidget* const dock : docks) {
        if (names.contains(dock->objectName()))
            dock->close();
    }
}

} // namespace

bool drawEditedForm(InspectorInput& input, const QString& file)
{
    QWidget* const own = input.tree()->window();
    const QWidget* const button = named("formButton");
    if (!button) {
        qWarning("there is no form with a button");
        return false;
    }
    QWidget* const program = button->window();
    makeRoom(program);
    makeRoom(own);
    program->resize(programWidth, pictureSize.height());
    own->resize(pictureSize.width() - programWidth - gap, pictureSize.height());
    settle();
    // The bar's text follows a moment later, since nothing announces it.
    const bool edited = type(input, "formLabel", "text", QStringLiteral("Your name, please"))
        && type(input, "formButton", "text", QStringLiteral("Send it now"))
        && type(
            input, "formButton", "styleSheet", QStringLiteral("background: #c0392b; color: white"))
        && type(input, "formBar", "value", QStringLiteral("80")) && QTest::qWaitFor([&] {
               return rowsOf(input.list()).contains(QStringLiteral("\"80%\""));
           });
    if (!edited) {
        qWarning("the form can't be edited");
        return false;
    }
    QImage picture(pictureSize, QImage::Format_RGB32);
    picture.fill(QColor(90, 96, 104));
    QPainter painter(&picture);
    painter.drawPixmap(0, 0, program->grab());
    painter.drawPixmap(programWidth + gap, 0, own->grab());
    painter.end();
    return picture.save(file);
}
