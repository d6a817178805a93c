// SPDX-License-Identifier: BSD-3-Clause
#include "EditorRow.h"
#include "ImageConversion.h"
#include "WfSFImageLabel.h"

#include <QScreen>
#include <QUndoStack>
#include <QWindow>

#include <memory>

namespace {

/// Bytes that differ from pixel to pixel and row to row, in a buffer of just their size, so that a
/// byte read too far is found.
struct Pixels {
    Pixels(int width, int height, int components)
        : size(std::size_t(width) * std::size_t(height) * std::size_t(components))
        , bytes(std::make_unique<unsigned char[]>(size))
    {
        for (std::size_t i = 0; i < size; ++i)
            bytes[i] = static_cast<unsigned char>(i * 37 + i / 251);
    }

    std::size_t size;
    std::unique_ptr<unsigned char[]> bytes;
};

void moveOver(QWidget* widget)
{
    QWindow* const window = widget->window()->windowHandle();
    QTest::mouseMove(window, widget->mapTo(widget->window(), QPoint(2, 2)));
    QTest::mouseMove(window, widget->mapTo(widget->window(), QPoint(5, 5)));
}

/// The image editor with a picture.
class Images : public EditorFixture {
public:
    Images(int width, int height, int components)
    {
        const Pixels pixels(width, height, components);
        node().SFImage.setValue(KbVec2s(width, height), components, pixels.bytes.get());
        select(field("SFImage"));
        thumbnail = child<QWidget>("m_imageBox");
        popup = child<QWidget>("pixmapLabel");
    }

    QPixmap shown() const { return static_cast<QLabel*>(thumbnail)->pixmap(); }

    QWidget* thumbnail;
    QWidget* popup;
};

} // namespace

class TestImageEditor : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void conversion_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("components");
        const QSize sizes[] = { { 1, 1 }, { 2, 1 }, { 3, 2 }, { 5, 7 }, { 16, 16 }, { 127, 3 },
            { 1, 300 }, { 512, 128 } };
        for (const QSize& size : sizes) {
            for (int components = 1; components <= 4; ++components) {
                QTest::addRow("%dx%dx%d", size.width(), size.height(), components)
                    << size.width() << size.height() << components;
            }
        }
    }
    void conversion()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(int, components);
        const Pixels pixels(width, height, components);
        const QImage image = imageFromPixels(pixels.bytes.get(), width, height, components);
        QCOMPARE(image.size(), QSize(width, height));
        const QImage::Format formats[]
            = { QImage::Format_Indexed8, QImage::Format_RGB16, QImage::Format_ARGB32 };
        QCOMPARE(image.format(), formats[std::min(components, 3) - 1]);
        const auto expected = [&](int x, int y) {
            const int row = components > 2 ? height - 1 - y : y;
            const unsigned char* p = pixels.bytes.get()
                + (std::size_t(row) * std::size_t(width) + std::size_t(x))
                    * std::size_t(components);
            switch (components) {
            case 1:
                return qRgb(p[0], p[0], p[0]);
            case 2: {
                const int pixel = p[0] | p[1] << 8;
                const auto wide = [](int value, int bits) {
                    return value << (8 - bits) | value >> (2 * bits - 8);
                };
                return qRgb(wide(pixel >> 11, 5), wide(pixel >> 5 & 63, 6), wide(pixel & 31, 5));
            }
            case 3:
                return qRgb(p[0], p[1], p[2]);
            default:
                return qRgba(p[0], p[1], p[2], p[3]);
            }
        };
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                QCOMPARE(image.pixel(x, y), expected(x, y));
        }
    }

    void nothingToConvertIsNoPicture()
    {
        const Pixels pixels(4, 4, 5);
        const int shapes[][3]
            = { { 0, 0, 3 }, { 4, 0, 1 }, { 0, 4, 4 }, { 4, 4, 0 }, { 4, 4, 5 }, { -4, 4, 2 } };
        for (const auto& shape : shapes)
            QVERIFY(imageFromPixels(pixels.bytes.get(), shape[0], shape[1], shape[2]).isNull());
        QVERIFY(imageFromPixels(nullptr, 4, 4, 3).isNull());
    }

    void aLargePictureIsConverted()
    {
        for (int components = 1; components <= 4; ++components) {
            const Pixels pixels(4096, 4096, components);
            const QImage image = imageFromPixels(pixels.bytes.get(), 4096, 4096, components);
            QCOMPARE(image.size(), QSize(4096, 4096));
        }
    }

    void thePopupHasTheSizeOfThePicture_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSize>("popup");
        QTest::newRow("small") << QSize(16, 9) << QSize(16, 9);
        QTest::newRow("wide") << QSize(512, 128) << QSize(256, 128);
        QTest::newRow("high") << QSize(10, 300) << QSize(10, 256);
    }
    void thePopupHasTheSizeOfThePicture()
    {
        QFETCH(QSize, picture);
        Images images(picture.width(), picture.height(), 3);
        QTEST(images.popup->size(), "popup");
        QCOMPARE(images.thumbnail->size(), QSize(16, 16));
        QCOMPARE(images.shown().size(), picture);
        moveOver(images.thumbnail);
        QTRY_VERIFY(images.popup->isVisible());
        // The row that is stored first stands at the bottom, opaque.
        const Pixels pixels(picture.width(), picture.height(), 3);
        QCOMPARE(images.shown().toImage().pixel(0, picture.height() - 1),
            qRgb(pixels.bytes[0], pixels.bytes[1], pixels.bytes[2]));
        QCOMPARE(images.undoStack().count(), 0);
    }

    void thePopupGoes_data()
    {
        QTest::addColumn<int>("how");
        QTest::newRow("at a press outside") << 0;
        QTest::newRow("at Esc") << 1;
        QTest::newRow("with the selection") << 2;
    }
    void thePopupGoes()
    {
        QFETCH(int, how);
        Images images(40, 40, 4);
        moveOver(images.thumbnail);
        QVERIFY(QTest::qWaitForWindowExposed(images.popup));
        // A press inside leaves it.
        QTest::mouseClick(images.popup->windowHandle(), Qt::LeftButton, {}, QPoint(20, 20));
        QVERIFY(images.popup->isVisible());
        QWidget& window = images.shell().window();
        if (how == 0)
            QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, QPoint(3, 3));
        else if (how == 1)
            QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
        else
            images.select(images.otherField("SFImage"));
        EditorFixture::settle();
        QVERIFY(!images.popup->isVisible());
        QVERIFY(!QApplication::activePopupWidget());
        if (how == 0)
            QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, QPoint(3, 3));
    }

    void thePopupStaysOnTheScreen()
    {
        Images images(256, 256, 3);
        QWidget& window = images.shell().window();
        window.resize(400, 60);
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        const QPoint target(screen.width() - 30, screen.height() - 60);
        window.move(window.pos() + target - images.thumbnail->mapToGlobal(QPoint()));
        QTRY_VERIFY((images.thumbnail->mapToGlobal(QPoint()) - target).manhattanLength() < 30);
        moveOver(images.thumbnail);
        QVERIFY(QTest::qWaitForWindowExposed(images.popup));
        QVERIFY(QRect(QPoint(), screen).contains(images.popup->geometry()));
    }

    void withoutAPictureNothingPopsUp()
    {
        Images images(0, 0, 3);
        QCOMPARE(images.popup->size(), QSize(0, 0));
        QVERIFY(images.shown().isNull());
        moveOver(images.thumbnail);
        EditorFixture::settle();
        QVERIFY(!QApplication::activePopupWidget());
        // A picture of too many components isn't one.
        EditorFixture::write(images.field("SFImage"), "1 1 5 0x1");
        QVERIFY(images.shown().isNull());
        EditorFixture::write(images.field("SFImage"), "1 1 4 0x11223300");
        QVERIFY(!images.shown().isNull());
        QCOMPARE(images.shown().toImage().pixelColor(0, 0).alpha(), 0);
    }
};

QTEST_MAIN(TestImageEditor)
#include "test_image_editor.moc"
