// SPDX-License-Identifier: BSD-3-Clause
#include "KnPreferences.h"

#include <QTest>

class TestPreferences : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void boolOfAVariable_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("byDefault1");
        QTest::addColumn<bool>("byDefault0");
        QTest::newRow("unset") << QByteArray() << true << false;
        QTest::newRow("empty") << QByteArray("") << true << false;
        for (const char* off : { "0", "off", "OFF", "no", "No", "false", "FaLsE" })
            QTest::newRow(off) << QByteArray(off) << false << false;
        for (const char* on : { "1", "on", "yes", "00", " 0", "offer" })
            QTest::newRow(on) << QByteArray(on) << true << true;
    }
    void boolOfAVariable()
    {
        QFETCH(QByteArray, value);
        const char* const name = "CORVANE_TEST_SWITCH";
        qunsetenv(name);
        if (!value.isNull())
            qputenv(name, value);
        QTEST(bool(KnPreferences::getBool(name, 1)), "byDefault1");
        QTEST(bool(KnPreferences::getBool(name, 0)), "byDefault0");
    }
};

QTEST_APPLESS_MAIN(TestPreferences)
#include "test_preferences.moc"
