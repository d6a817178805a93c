// SPDX-License-Identifier: BSD-3-Clause
#include "KnPreferences.h"

#include <QTest>

class TestPreferences : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void boolOfAVariable()
    {
        const char* const name = "CORVANE_TEST_SWITCH";
        const auto get = [name](int byDefault) { return KnPreferences::getBool(name, byDefault); };
        QVERIFY(get(1) && !get(0));
        for (const char* off : { "0", "off", "NO", "FaLsE" })
            QVERIFY2(qputenv(name, off) && !get(1) && !get(0), off);
        for (const char* on : { "1", "on", "yes", "00", " 0", "offer" })
            QVERIFY2(qputenv(name, on) && get(1) && get(0), on);
        QVERIFY(qputenv(name, "") && get(1) && !get(0));
    }
};

QTEST_APPLESS_MAIN(TestPreferences)
#include "test_preferences.moc"
