// SPDX-License-Identifier: BSD-3-Clause
#include "WindowLayout.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize defaultSize(400, 300);
constexpr QSize changedSize(500, 350);

/// A window with one dock, on the left unless a layout says otherwise.
struct Window : QMainWindow {
    explicit Window(QSettings* settings)
        : layout(new WindowLayout(this, settings, 1))
    {
        dock->setObjectName(u"dock"_s);
        addDockWidget(Qt::LeftDockWidgetArea, dock);
        resize(defaultSize);
    }

    QDockWidget* const dock = new QDockWidget(this);
    WindowLayout* const layout;
};

} // namespace

/// What becomes of saved layouts, whole and damaged.
class TestWindowLayout : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
        m_settings = std::make_unique<QSettings>(m_fileName, QSettings::IniFormat);
        m_settings->clear();
        m_settings->setValue(u"window/restoring"_s, true); // until it is saved
        Window window(m_settings.get());
        window.addDockWidget(Qt::RightDockWidgetArea, window.dock);
        window.resize(changedSize);
        window.layout->save();
    }

    void comesBackAndIsMarkedMeanwhile()
    {
        const auto markedOnDisk = [this] {
            QFile file(m_fileName);
            return file.open(QIODevice::ReadOnly) && file.readAll().contains("restoring=true");
        };
        Window window(m_settings.get());
        bool markedInTime = false;
        connect(window.dock, &QDockWidget::dockLocationChanged, this,
            [&] { markedInTime = markedOnDisk(); });
        m_settings->sync();
        QVERIFY(!markedOnDisk());
        QVERIFY(window.layout->restore() && markedInTime);
        QCOMPARE(window.dockWidgetArea(window.dock), Qt::RightDockWidgetArea);
        QCOMPARE(window.size(), changedSize);
        QCoreApplication::processEvents();
        m_settings->sync();
        QVERIFY(markedOnDisk()); // there is no window to be seen yet
        window.show();
        QTRY_VERIFY((m_settings->sync(), !markedOnDisk()));
    }

    void damageIsNoticed_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        init();
        for (const QString& name : { u"geometry"_s, u"layout"_s, u"check"_s }) {
            const QString key = u"window/"_s + name;
            const QByteArray saved = m_settings->value(key).toByteArray();
            const auto row = [&](const QString& damage, const QVariant& value) {
                QTest::newRow(qPrintable(name + u' ' + damage)) << key << value;
            };
            for (const qsizetype at : { qsizetype(0), saved.size() / 2, saved.size() - 1 }) {
                QByteArray flipped = saved;
                flipped[at] = static_cast<char>(flipped.at(at) ^ 4);
                row(u"with another byte %1"_s.arg(at), flipped);
            }
            row(u"cut short"_s, saved.chopped(1));
            row(u"empty"_s, QByteArray());
            row(u"as a list"_s, QStringList { u"a"_s, u"b"_s });
        }
    }
    void damageIsNoticed()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        m_settings->setValue(key, value);
        Window window(m_settings.get());
        QVERIFY(!window.layout->restore());
        QCOMPARE(window.dockWidgetArea(window.dock), Qt::LeftDockWidgetArea);
        QCOMPARE(window.size(), defaultSize);
        QVERIFY(m_settings->allKeys().isEmpty());
    }

private:
    const QTemporaryDir m_folder;
    const QString m_fileName = m_folder.filePath(u"settings.ini"_s);
    std::unique_ptr<QSettings> m_settings;
};

QTEST_MAIN(TestWindowLayout)
#include "test_window_layout.moc"
