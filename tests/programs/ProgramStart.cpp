// SPDX-License-Identifier: BSD-3-Clause
#include "ProgramStart.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMainWindow>
#include <QPushButton>
#include <QTest>

namespace {

QWidget* widgetOf(const char* className)
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* const widget : widgets) {
        if (widget->inherits(className) && widget->isVisible())
            return widget;
    }
    return nullptr;
}

int countOf(const char* className)
{
    const QWidgetList widgets = QApplication::allWidgets();
    return static_cast<int>(std::count_if(widgets.begin(), widgets.end(),
        [className](const QWidget* widget) { return widget->inherits(className); }));
}

/// File > New, whose dialog runs an event loop of its own.
void askForForm()
{
    QWidget* const window = widgetOf("QMainWindow");
    window->activateWindow();
    if (QTest::qWaitForWindowActive(window))
        QTest::keySequence(window, QKeySequence::New);
}

void createForm(QWidget* dialog)
{
    auto* const box = dialog->findChild<QDialogButtonBox*>();
    const QList<QAbstractButton*> buttons = box ? box->buttons() : QList<QAbstractButton*>();
    for (QAbstractButton* const button : buttons) {
        if (box->buttonRole(button) == QDialogButtonBox::ActionRole
            || box->buttonRole(button) == QDialogButtonBox::AcceptRole) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
}

} // namespace

bool programIsReady()
{
    static bool asked = false;
    if (QCoreApplication::applicationName() != QLatin1String("Designer"))
        return true;
    // The one on the command line, and a new one.
    if (countOf("qdesigner_internal::FormWindow") >= 2)
        return true;
    if (!asked && widgetOf("QMainWindow")) {
        asked = true;
        QMetaObject::invokeMethod(QCoreApplication::instance(), &askForForm, Qt::QueuedConnection);
    } else if (QWidget* const dialog = widgetOf("QDialog")) {
        createForm(dialog);
    }
    return false;
}
