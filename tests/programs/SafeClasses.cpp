// SPDX-License-Identifier: BSD-3-Clause
#include "SafeClasses.h"

#include "InspectorInput.h"

namespace {

/// What they do lies in their own properties. Left out are windows, dialogs and menus, which would
/// take the focus or the desktop, layouts and splitters, which move others, and models and views.
const char* const safeClasses[] = { "QAction", "QActionGroup", "QButtonGroup", "QCheckBox",
    "QComboBox", "QDateTimeEdit", "QDial", "QDockWidget", "QDoubleSpinBox", "QFrame", "QGroupBox",
    "QLCDNumber", "QLabel", "QLineEdit", "QProgressBar", "QPushButton", "QRadioButton",
    "QScrollBar", "QSlider", "QSpinBox", "QToolButton" };

} // namespace

QList<QPointer<QObject>> safeObjects()
{
    const QObjectList all = InspectorInput::programObjects();
    QList<QPointer<QObject>> safe;
    for (const char* const name : safeClasses) {
        QObject* inProgram = nullptr;
        QObject* inForm = nullptr;
        for (QObject* const object : all) {
            if (qstrcmp(object->metaObject()->className(), name) != 0)
                continue;
            if (object->objectName().startsWith(QLatin1String("form")))
                inForm = object;
            else if (!inProgram && object->parent())
                inProgram = object;
        }
        for (QObject* const object : { inProgram, inForm }) {
            if (object)
                safe += object;
        }
    }
    return safe;
}

const char* whyKept(QLatin1String property)
{
    struct Kept {
        const char* property;
        const char* reason;
    };
    static const Kept kept[] = {
        { "checked", "since it isn't checkable" },
        { "currentText", "since it takes only what is in its list" },
        { "cursorPosition", "since it stands in an empty text" },
        { "frameRect", "since it follows the size" },
        { "geometry", "since a layout decides" },
        { "maximumDateTime", "since there is no later one" },
        { "sliderPosition", "since it stands at the end of the range" },
        { "size", "since a layout decides" },
        { "value", "since it stands at the end of the range" },
        { "visible", "since what it stands in is hidden, or decides" },
        { "windowOpacity", "since it is no window" },
    };
    for (const Kept& known : kept) {
        if (property == QLatin1String(known.property))
            return known.reason;
    }
    return nullptr;
}
