// SPDX-License-Identifier: BSD-3-Clause
#include "KnPreferences.h"

#include <QTest>

class TestPreferences : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void boolOfAVariable()
    {
        const char* const name = "CORVANE_TEST_SWITCH";
        qunsetenv(name);
        QVERIFY(KnPreferences::getBool(name, 1) && !KnPreferences::getBool(name, 0));
        QByteArray results;
        for (const char* value : { "", "0", "off", "OFF", "no", "No", "false", "FaLsE", "1", "on",
                 "yes", "00", " 0", "offer" }) {
            qputenv(name, value);
            results += KnPreferences::getBool(name, 1) ? '1' : '0';
            results += KnPreferences::getBool(name, 0) ? "1 " : "0 ";
        }
        QCOMPARE(results, "10 00 00 00 00 00 00 00 11 11 11 11 11 11 ");
    }
};

QTEST_APPLESS_MAIN(TestPreferences)
#include "test_preferences.moc"
