// SPDX-License-Identifier: BSD-3-Clause
#include "Picture.h"

#include "KnSensorQueue.h"

#include <QApplication>
#include <QFileInfo>
#include <QImageWriter>
#include <QLayout>
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

QByteArray formatOf(const QString& fileName)
{
    const QByteArray suffix = QFileInfo(fileName).suffix().toLower().toUtf8();
    return suffix.isEmpty() ? QByteArrayLiteral("png") : suffix;
}

} // namespace

bool Picture::hasKnownFormat(const QString& fileName, QString* error)
{
    const QList<QByteArray> formats = QImageWriter::supportedImageFormats();
    if (formats.contains(formatOf(fileName)))
        return true;
    *error
        = tr("%1: pictures are written as %2").arg(fileName, QString::fromUtf8(formats.join(", ")));
    return false;
}

bool Picture::take(QMainWindow& window, const QSize& size, const QString& fileName, QString* error)
{
    window.setAnimated(false);
    QApplication::setCursorFlashTime(0);
    if (size.isValid()) {
        // Whoever asks for a small picture gets one, even if the docks want more room.
        window.layout()->setSizeConstraint(QLayout::SetNoConstraint);
        window.setMinimumSize(1, 1);
        window.resize(size);
    }
    window.show();
    const QImage image = settledImage(window);

    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        *error = QStringLiteral("%1: %2").arg(fileName, file.errorString());
        return false;
    }
    QImageWriter writer(&file, formatOf(fileName));
    if (!writer.write(image) || !file.commit()) {
        *error = tr("%1: the picture could not be written").arg(fileName);
        return false;
    }
    return true;
}
