// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QMimeData;
class QWidget;

/// Takes a file that is dropped on a widget, before the widget or the window below it does.
/// Anything else that is dragged there is the widget's own.
class FileDrop : public QObject {
    Q_OBJECT
public:
    /// The widget is the parent. `take` gets the file's path.
    FileDrop(QWidget* widget, std::function<void(const QString&)> take);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static QString fileOf(const QMimeData* data);

    std::function<void(const QString&)> m_take;
};
