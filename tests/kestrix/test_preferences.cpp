// SPDX-License-Identifier: BSD-3-Clause
#include "KnPreferences.h"

#include <QTest>

class TestPreferences : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void boolOfAVariable();
};

void TestPreferences::boolOfAVariable()
{
    const char* const name = "CORVANE_TEST_SWITCH";
    const auto results = [&] {
        return QByteArray::number(KnPreferences::getBool(name, 1))
            + QByteArray::number(KnPreferences::getBool(name, 0));
    };
    qunsetenv(name);
    QCOMPARE(results(), QByteArray("10"));
    for (const QByteArray row : { "=10", "0=00", "off=00", "OFF=00", "no=00", "No=00", "false=00",
             "FaLsE=00", "1=11", "on=11", "yes=11", "00=11", " 0=11", "offer=11" }) {
        const QByteArray value = row.split('=').first();
        qputenv(name, value);
        QCOMPARE(value + '=' + results(), row);
    }
}

QTEST_APPLESS_MAIN(TestPreferences)
#include "test_preferences.moc"
