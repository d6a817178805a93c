// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"
#include "ImageConversion.h"
#include "TextRows.h"
#include "WfSFImageLabel.h"

#include <QScreen>
#include <QUndoStack>
#include <QWindow>

#include <vector>

namespace {

/// Bytes that differ from pixel to pixel and row to row, in a buffer of just their size, so that a
/// byte read too far is found.
std::vector<unsigned char> pixels(const QSize& size, int components)
{
    std::vector<unsigned char> bytes(std::size_t(size.width() * size.height() * components));
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<unsigned char>(i * 37 + i / 251);
    return bytes;
}

/// The image editor with a picture.
class Images : public EditorFixture {
public:
    Images(int width, int height)
    {
        const auto bytes = pixels(QSize(width, height), 3);
        node().SFImage.setValue(KbVec2s(width, height), 3, bytes.data());
        select(field("SFImage"));
        thumbnail = child<QLabel>("m_imageBox");
        popup = child<QWidget>("pixmapLabel");
    }

    QImage shown() const { return thumbnail->pixmap().toImage(); }
    void moveOverThumbnail()
    {
        for (const QPoint& point : { QPoint(2, 2), QPoint(5, 5) })
            QTest::mouseMove(window(), thumbnail->mapTo(&shell().window(), point));
    }
    QWindow* window() { return shell().window().windowHandle(); }

    QLabel* thumbnail;
    QWidget* popup;
};

} // namespace

class TestImageEditor : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void conversion()
    {
        // As stored and as converted, by the number of components.
        const std::pair<QImage::Format, QImage::Format> formats[]
            = { { QImage::Format_Grayscale8, QImage::Format_Indexed8 },
                  { QImage::Format_RGB16, QImage::Format_RGB16 },
                  { QImage::Format_RGB888, QImage::Format_ARGB32 },
                  { QImage::Format_RGBA8888, QImage::Format_ARGB32 } };
        for (const auto& [width, height] : { std::pair(5, 7), std::pair(1, 300) }) {
            for (int components = 1; components <= 4; ++components) {
                const auto& [stored, converted] = formats[components - 1];
                const auto bytes = pixels(QSize(width, height), components);
                const QImage image = imageFromPixels(bytes.data(), width, height, components);
                QCOMPARE(image.format(), converted);
                // Colours are stored from the bottom row up.
                const QImage raw(bytes.data(), width, height, width * components, stored);
                QCOMPARE(image.convertToFormat(QImage::Format_ARGB32),
                    raw.mirrored(false, components > 2).convertToFormat(QImage::Format_ARGB32));
            }
        }
    }

    void thePopupHasTheSizeOfThePicture()
    {
        for (const QSize& size : { QSize(16, 9), QSize(512, 128), QSize(10, 300) }) {
            Images images(size.width(), size.height());
            QCOMPARE(images.popup->size(), size.boundedTo(QSize(256, 256)));
            QCOMPARE(images.shown().size(), size);
        }
    }

    void thePopupGoes_data() { addTextRows({ { "click outside" }, { "Esc" }, { "selection" } }); }
    void thePopupGoes()
    {
        const QString way = textRow<1>()[0];
        Images images(40, 40);
        images.moveOverThumbnail();
        QVERIFY(QTest::qWaitForWindowExposed(images.popup));
        // A press inside leaves it.
        QTest::mouseClick(images.popup->windowHandle(), Qt::LeftButton, {}, QPoint(20, 20));
        QVERIFY(images.popup->isVisible());
        if (way == u"selection")
            images.select(nullptr);
        else if (way == u"Esc")
            QTest::keyClick(images.window(), Qt::Key_Escape);
        else
            QTest::mouseClick(images.window(), Qt::LeftButton, {}, QPoint(3, 3));
        EditorFixture::settle();
        QVERIFY(!images.popup->isVisible() && !QApplication::activePopupWidget());
    }

    void thePopupStaysOnTheScreen()
    {
        Images images(256, 256);
        QWidget& window = images.shell().window();
        window.resize(400, 60);
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        const QPoint target(screen.width() - 30, screen.height() - 60);
        window.move(window.pos() + target - images.thumbnail->mapToGlobal(QPoint()));
        QTRY_VERIFY((images.thumbnail->mapToGlobal(QPoint()) - target).manhattanLength() < 30);
        images.moveOverThumbnail();
        QVERIFY(QTest::qWaitForWindowExposed(images.popup));
        QVERIFY(QRect(QPoint(), screen).contains(images.popup->geometry()));
    }

    void withoutAPictureNothingPopsUp()
    {
        Images images(0, 0);
        QVERIFY(images.shown().isNull());
        images.moveOverThumbnail();
        EditorFixture::settle();
        QVERIFY(!QApplication::activePopupWidget());
        EditorFixture::write(images.field("SFImage"), "1 1 4 0x11223300");
        QCOMPARE(images.shown().pixelColor(0, 0).alpha(), 0);
    }
};

QTEST_MAIN(TestImageEditor)
#include "test_image_editor.moc"
