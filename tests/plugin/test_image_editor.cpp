// SPDX-License-Identifier: BSD-3-Clause
#include "EditorFixture.h"
#include "ImageConversion.h"
#include "TextRows.h"
#include "WfSFImageLabel.h"

#include <QScreen>
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

} // namespace

class TestImageEditor : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
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
            show(size);
            QCOMPARE(m_popup->size(), size.boundedTo(QSize(256, 256)));
            QCOMPARE(shown().size(), size);
        }
    }

    void thePopupGoes_data() { addTextRows({ { "click outside" }, { "Esc" }, { "selection" } }); }
    void thePopupGoes()
    {
        const QString way = textRow<1>()[0];
        show(QSize(40, 40));
        moveOverThumbnail();
        QVERIFY(QTest::qWaitForWindowExposed(m_popup));
        // A press inside leaves it.
        QTest::mouseClick(m_popup->windowHandle(), Qt::LeftButton, {}, QPoint(20, 20));
        QVERIFY(m_popup->isVisible());
        if (way == u"selection")
            select(nullptr);
        else if (way == u"Esc")
            QTest::keyClick(window().windowHandle(), Qt::Key_Escape);
        else
            QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, QPoint(3, 3));
        settle();
        QVERIFY(!m_popup->isVisible() && !QApplication::activePopupWidget());
    }

    void thePopupStaysOnTheScreen()
    {
        show(QSize(256, 256));
        window().resize(400, 60);
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        const QPoint target(screen.width() - 30, screen.height() - 60);
        window().move(window().pos() + target - m_thumbnail->mapToGlobal(QPoint()));
        QTRY_VERIFY((m_thumbnail->mapToGlobal(QPoint()) - target).manhattanLength() < 30);
        moveOverThumbnail();
        QVERIFY(QTest::qWaitForWindowExposed(m_popup));
        QVERIFY(QRect(QPoint(), screen).contains(m_popup->geometry()));
    }

    void withoutAPictureNothingPopsUp()
    {
        show(QSize(0, 0));
        QVERIFY(shown().isNull());
        moveOverThumbnail();
        settle();
        QVERIFY(!QApplication::activePopupWidget());
        write(field("SFImage"), "1 1 4 0x11223300");
        QCOMPARE(shown().pixelColor(0, 0).alpha(), 0);
    }

private:
    /// Shows a picture in the editor.
    void show(const QSize& size)
    {
        const auto bytes = pixels(size, 3);
        node().SFImage.setValue(KbVec2s(size.width(), size.height()), 3, bytes.data());
        select(field("SFImage"));
        m_thumbnail = child<QLabel>("m_imageBox");
        m_popup = child<QWidget>("pixmapLabel");
    }
    QImage shown() const { return m_thumbnail->pixmap().toImage(); }
    void moveOverThumbnail()
    {
        for (const QPoint& point : { QPoint(2, 2), QPoint(5, 5) })
            QTest::mouseMove(window().windowHandle(), m_thumbnail->mapTo(&window(), point));
    }

    QLabel* m_thumbnail = nullptr; // of the editor, as is the popup
    QWidget* m_popup = nullptr;
};

QTEST_MAIN(TestImageEditor)
#include "test_image_editor.moc"
