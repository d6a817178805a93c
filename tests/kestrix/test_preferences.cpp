// SPDX-License-Identifier: BSD-3-Clause
#include "KnPreferences.h"

#include <QTest>

class TestPreferences : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void boolOfAVariable_data();
    void boolOfAVariable();
};

void TestPreferences::boolOfAVariable_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("byDefaultTrue");
    QTest::addColumn<bool>("byDefaultFalse");
    const auto row = [](const char* value, bool byDefaultTrue, bool byDefaultFalse) {
        QTest::newRow(value ? value : "unset")
            << QByteArray(value) << byDefaultTrue << byDefaultFalse;
    };
    row(nullptr, true, false);
    row("", true, false);
    for (const char* value : { "0", "off", "OFF", "no", "No", "false", "FaLsE" })
        row(value, false, false);
    for (const char* value : { "1", "on", "yes", "true", "00", " 0", "offer", "anything" })
        row(value, true, true);
}

void TestPreferences::boolOfAVariable()
{
    QFETCH(QByteArray, value);
    QFETCH(bool, byDefaultTrue);
    QFETCH(bool, byDefaultFalse);
    const char* const name = "CORVANE_TEST_SWITCH";
    if (value.isNull())
        qunsetenv(name);
    else
        qputenv(name, value);
    QCOMPARE(KnPreferences::getBool(name, 1), byDefaultTrue);
    QCOMPARE(KnPreferences::getBool(name, 0), byDefaultFalse);
}

QTEST_APPLESS_MAIN(TestPreferences)
#include "test_preferences.moc"
