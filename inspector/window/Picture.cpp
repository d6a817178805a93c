// SPDX-License-Identifier: BSD-3-Clause
#include "Picture.h"

#include "KnSensorQueue.h"

#include <QApplication>
#include <QMainWindow>
#include <QPixmap>
#include <QSaveFile>

namespace {

// Layouts and sensors take a few rounds of the event loop.
constexpr int maxRounds = 50;

QImage settledImage(QMainWindow& window)
{
    QImage image;
    for (int round = 0; round < maxRounds; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
        KnSensorQueue::getInstance().process();
        const QImage next = window.grab().toImage();
        if (next == image)
            break;
        image = next;
    }
    return image;
}

} // namespace

bool Picture::take(QMainWindow& window, const QString& fileName, QString* error)
{
    window.setAnimated(false);
    QApplication::setCursorFlashTime(0);
    window.show();
    const QImage image = settledImage(window);

    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        *error = QStringLiteral("%1: %2").arg(fileName, file.errorString());
        return false;
    }
    if (!image.save(&file, "PNG") || !file.commit()) {
        *error = tr("%1: the picture could not be written").arg(fileName);
        return false;
    }
    return true;
}
