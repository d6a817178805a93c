// SPDX-License-Identifier: BSD-3-Clause
#include <QLocale>
#include <QTest>

#include <cstdlib>

/// Sees to it that the runs under a German locale really have that locale, in the C library as well
/// as in Qt; otherwise they could pass and prove nothing.
class TestLocale : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numbersAreReadAsTheLocaleHasIt();
};

void TestLocale::numbersAreReadAsTheLocaleHasIt()
{
    const bool german = qgetenv("LC_ALL").startsWith("de_DE");
    QCOMPARE(std::strtod("1,5", nullptr), german ? 1.5 : 1.0);
    QCOMPARE(QLocale().toDouble(QStringLiteral("1,5")), german ? 1.5 : 0.0);
}

QTEST_MAIN(TestLocale)
#include "test_locale.moc"
