// SPDX-License-Identifier: BSD-3-Clause
#include "CrvObjects.h"
#include "CrvStrings.h"
#include "KnField.h"
#include "KnFieldContainer.h"
#include "KnFieldSensor.h"
#include "KnMField.h"
#include "KnNodePtr.h"
#include "KnReadErrorCapture.h"
#include "KnSensorQueue.h"

#include <QBitArray>
#include <QCursor>
#include <QDataStream>
#include <QEasingCurve>
#include <QFont>
#include <QIcon>
#include <QJsonArray>
#include <QJsonObject>
#include <QKeySequence>
#include <QLine>
#include <QLocale>
#include <QMargins>
#include <QMatrix4x4>
#include <QPalette>
#include <QPen>
#include <QPolygonF>
#include <QQuaternion>
#include <QRegion>
#include <QRegularExpression>
#include <QSizePolicy>
#include <QTest>
#include <QTextFormat>
#include <QTimeZone>
#include <QTransform>
#include <QUrl>
#include <QUuid>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>
#include <QVersionNumber>

#include <cmath>
#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// An object with one dynamic property, as a node.
struct Holder {
    explicit Holder(const QVariant& value)
    {
        object.setProperty("value", value);
        node = KnNodePtr(crvObjectNode(&object));
        field = node->getField("value");
    }

    QString text() const
    {
        KbString text;
        field->get(text);
        return toQString(text);
    }
    QVariant value() const { return object.property("value"); }
    /// The field that the node has now.
    KnField* current() const { return node->getField("value"); }

    QObject object;
    KnNodePtr node;
    KnField* field = nullptr;
};

/// All there is to a value, also what `==` passes over.
QByteArray identity(const QVariant& value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    if (value.metaType().hasRegisteredDataStreamOperators())
        stream << value;
    QString text;
    QDebug(&text) << value;
    if (value.metaType() == QMetaType::fromType<QString>())
        text += value.toString().isNull() ? u"null"_s : u"not null"_s;
    else if (value.metaType() == QMetaType::fromType<QFont>())
        text += QString::number(value.value<QFont>().resolveMask());
    else if (value.metaType() == QMetaType::fromType<QPalette>())
        text += QString::number(value.value<QPalette>().resolveMask());
    return bytes + text.toUtf8();
}

QImage picture(QImage::Format format)
{
    QImage image(2, 3, format);
    image.fill(Qt::black);
    image.setPixelColor(0, 0, Qt::white);
    image.setPixelColor(1, 2, QColor(200, 200, 200));
    return image;
}

} // namespace

class TestObjectValues : public QObject {
    Q_OBJECT
public:
    enum class Small : quint8 { Low, High = 200 };
    Q_ENUM(Small)
    enum class Signed : qint16 { None, Below = -300 };
    Q_ENUM(Signed)
    enum class Huge : quint64 { None };
    enum class Wide : quint32 { None };

private Q_SLOTS:
    void eachTypeIsShownAndWrittenBack_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("type"); // of the field
        QTest::addColumn<QString>("text");
        const auto row
            = [](const char* name, const QVariant& value, const char* type, const QString& text) {
                  QTest::newRow(name) << value << QString::fromLatin1(type) << text;
              };
        row("bool", true, "SFBool", u"TRUE"_s);
        row("short", QVariant::fromValue(short(-5)), "SFShort", u"-5"_s);
        row("int", std::numeric_limits<int>::min(), "SFInt32", u"-2147483648"_s);
        row("uint", 255U, "SFUInt32", u"0xff"_s);
        row("int64", std::numeric_limits<qint64>::min(), "SFInt64", u"-9223372036854775808"_s);
        row("uint64", std::numeric_limits<quint64>::max(), "SFUInt64", u"18446744073709551615"_s);
        row("uchar", QVariant::fromValue(uchar(200)), "SFUInt8", u"200"_s);
        row("float", 0.1F, "SFFloat", u"0.1"_s);
        row("double", 0.1, "SFDouble", u"0.1"_s);
        row("string", u"a \"b\"\n\u00e4"_s, "SFString", u"\"a \\\"b\\\"\\n\u00e4\""_s);
        row("bytes", QByteArray("a\\\0\xff", 4), "SFBytes", u"a\\x5c\\x00\\xff"_s);
        row("character", QChar(u'\u00e4'), "SFCharacter", u"\u00e4"_s);
        row("url", QUrl(u"http://a/b%20c?d=\u00e4"_s), "SFString",
            u"\"http://a/b%20c?d=%C3%A4\""_s);
        row("color", QColor(255, 0, 51, 102), "SFColorRGBA", u"1 0 0.2 0.4"_s);
        row("color of 16 bits", QColor(QRgba64::fromRgba64(1, 2, 3, 65534)), "SFColorRGBA", {});
        row("point", QPoint(-1, 2), "SFVec2i32", u"-1 2"_s);
        row("size", QSize(3, 4), "SFVec2i32", u"3 4"_s);
        row("point of doubles", QPointF(0.1, 1e300), "SFPointF", u"0.1 1e+300"_s);
        row("size of doubles", QSizeF(0.1, 2), "SFSizeF", u"0.1 2"_s);
        row("vector2", QVector2D(1, 2.5F), "SFVec2f", u"1 2.5"_s);
        row("vector3", QVector3D(1, 2, 3), "SFVec3f", u"1 2 3"_s);
        row("vector4", QVector4D(1, 2, 3, 4), "SFVec4f", u"1 2 3 4"_s);
        row("rotation", QQuaternion(0.8F, 0.6F, 0, 0), "SFRotation", {});
        row("matrix", QMatrix4x4(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16), "SFMatrix",
            u"1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16"_s);
        row("rect", QRect(1, 2, 30, 40), "SFRect", u"1 2 30 40"_s);
        row("rect of doubles", QRectF(0.1, 2, 3, 4), "SFRectF", u"0.1 2 3 4"_s);
        row("line", QLine(1, 2, 3, 4), "SFLine", u"1 2 3 4"_s);
        row("margins", QVariant::fromValue(QMargins(1, 2, 3, 4)), "SFMargins", u"1 2 3 4"_s);
        row("transform", QTransform(1, 2, 3, 4, 5, 6, 7, 8, 9.5), "SFTransform",
            u"1 2 3 4 5 6 7 8 9.5"_s);
        row("font", QFont(u"Serif"_s, 11, QFont::Bold, true), "SFFont", {});
        QFont spaced(u"Serif"_s);
        spaced.setPixelSize(9);
        spaced.setStyleHint(QFont::Monospace);
        spaced.setLetterSpacing(QFont::AbsoluteSpacing, 2.5);
        row("spaced font", spaced, "SFFont", {});
        row("keys", QKeySequence(u"Ctrl+K, Alt+F4"_s), "SFKeys", u"Ctrl+K, Alt+F4"_s);
        row("locale", QLocale(QLocale::German, QLocale::Austria), "SFLocale", u"de-AT"_s);
        row("date", QDate(2030, 12, 31), "SFDate", u"2030-12-31"_s);
        row("time", QTime(1, 2, 3, 4), "SFTimeOfDay", u"01:02:03.004"_s);
        const QDate day(2030, 7, 1);
        row("local time", QDateTime(day, QTime(1, 2)), "SFDateTime", u"2030-07-01T01:02:00.000"_s);
        row("UTC", QDateTime(day, QTime(1, 2), Qt::UTC), "SFDateTime",
            u"2030-07-01T01:02:00.000Z"_s);
        row("offset", QDateTime(day, QTime(1, 2), Qt::OffsetFromUTC, 5400), "SFDateTime",
            u"2030-07-01T01:02:00.000+01:30"_s);
        row("uuid", QUuid(u"{12345678-1234-1234-1234-123456789abc}"_s), "SFUuid",
            u"{12345678-1234-1234-1234-123456789abc}"_s);
        row("alignment", QVariant::fromValue(Qt::AlignRight | Qt::AlignTop), "SFBitMask",
            u"(AlignRight | AlignTop)"_s);
        row("cursor shape", QVariant::fromValue(Qt::WaitCursor), "SFEnum", u"WaitCursor"_s);
        row("small enum", QVariant::fromValue(Small::High), "SFEnum", u"High"_s);
        row("smaller enum", QVariant::fromValue(Signed::Below), "SFEnum", u"Below"_s);
        row("strings", QStringList({ u"a"_s, u"b c"_s }), "MFString", u"[ \"a\", \"b c\" ]"_s);
        row("ints", QVariant::fromValue(QList<int>({ 1, 2 })), "MFInt32", u"[ 1, 2 ]"_s);
        row("colors", QVariant::fromValue(QList<QColor>({ Qt::red, Qt::blue })), "MFColorRGBA",
            u"[ 1 0 0 1, 0 0 1 1 ]"_s);
        row("vectors", QVariant::fromValue(QList<QVector3D>({ { 1, 2, 3 } })), "MFVec3f",
            u"[ 1 2 3 ]"_s);
        row("bools", QVariant::fromValue(QList<bool> { true, false }), "MFBool",
            u"[ \"TRUE\", \"FALSE\" ]"_s);
        row("enums", QVariant::fromValue(QList<Small> { Small::High, Small(7) }), "MFChoice",
            u"[ \"High\", \"7\" ]"_s);
        row("rects", QVariant::fromValue(QList<QRect> { { 1, 2, 3, 4 } }), "MFRect",
            u"[ \"1 2 3 4\" ]"_s);
        row("vector of numbers", QVariant::fromValue(std::vector<qint64> { 1, -2 }), "MFInt64",
            u"[ \"1\", \"-2\" ]"_s);
        row("variants", QVariantList { 1, 1.0, u"1"_s, true, QVariant::fromValue(ushort(65535)) },
            "MFVariant",
            u"[ \"1\", \"1.0\", \"\\\"1\\\"\", \"true\", \"ushort \\\"65535\\\"\" ]"_s);
        row("map", QVariantMap { { u"a\"b"_s, 1 }, { u"c"_s, QVariantList { 2.5, QVariant() } } },
            "SFVariantMap", u"{ \"a\\\"b\": 1, \"c\": [ 2.5, null ] }"_s);
        row("hash", QVariantHash { { u"a"_s, QVariantMap { { u"b"_s, QStringList { u"c"_s } } } } },
            "SFVariantHash", u"QVariantHash { \"a\": { \"b\": QStringList [ \"c\" ] } }"_s);
        row("huge flags", QVariant::fromValue(Huge(1ULL << 40)), "SFChoice", u"1099511627776"_s);
        row("topmost bit", QVariant::fromValue(Wide(1U << 31)), "SFChoice", u"2147483648"_s);
        row("size policy", QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed), "SFSizePolicy",
            u"Expanding Fixed"_s);
        QSizePolicy sizes(QSizePolicy::Fixed, QSizePolicy::Preferred, QSizePolicy::Slider);
        sizes.setHorizontalStretch(1);
        sizes.setVerticalStretch(255);
        sizes.setHeightForWidth(true);
        sizes.setRetainSizeWhenHidden(true);
        row("rich size policy", sizes, "SFSizePolicy",
            u"Fixed Preferred stretch 1 255 Slider heightForWidth retainSizeWhenHidden"_s);
        row("cursor", QCursor(Qt::WaitCursor), "SFCursor", u"WaitCursor"_s);
        row("brush", QBrush(Qt::red, Qt::Dense4Pattern), "SFBrush", u"Dense4Pattern:#ff0000"_s);
        row("brush of a grey", QBrush(QColor::fromHsv(-1, 0, 128)), "SFBrush", {});
        row("pen", QPen(QColor(1, 2, 3), 2.5, Qt::DotLine), "SFPen",
            u"#010203 2.5 DotLine SquareCap BevelJoin"_s);
        row("pattern", QRegularExpression(u"a/b"_s, QRegularExpression::CaseInsensitiveOption),
            "SFRegularExpression", u"/a/b/i"_s);
        QBitArray bits(3);
        bits.setBit(1);
        row("bits", bits, "SFBits", u"010"_s);
        QEasingCurve curve(QEasingCurve::InElastic);
        curve.setAmplitude(2);
        curve.setPeriod(0.25);
        row("curve", QEasingCurve(QEasingCurve::InOutBack), "SFEasingCurve", u"InOutBack"_s);
        row("region", QRegion(1, 2, 3, 4), "SFRegion", u"1 2 3 4"_s);
        row("polygon", QPolygon(QList<QPoint> { { 1, 2 }, { 3, 4 } }), "SFPolygon", u"1 2, 3 4"_s);
        row("polygon of doubles", QPolygonF(QList<QPointF> { { 1.5, 2 }, { 3, 4 } }), "SFPolygonF",
            u"1.5 2, 3 4"_s);
        row("curve with numbers", curve, "SFEasingCurve", u"InElastic 2 1.7015800000000001 0.25"_s);
        row("version", QVariant::fromValue(QVersionNumber(1, 2, 3)), "SFVersion", u"1.2.3"_s);
        row("json value", QJsonValue(true), "SFJson", u"true"_s);
        row("json array", QJsonArray { 1, u"a"_s }, "SFJsonArray", u"[1,\"a\"]"_s);
        row("json", QJsonObject { { u"a"_s, 1 } }, "SFJsonObject", u"{\"a\":1}"_s);
        row("date beyond ISO", QDate(12000, 1, 2), "SFDate", u"JD 6103971"_s);
        row("grey image", picture(QImage::Format_Grayscale8), "SFImage",
            u"2 3 1 0x0 0xc8 0x0 0x0 0xff 0x0"_s);
        row("colored image", picture(QImage::Format_ARGB32), "SFImage",
            u"2 3 4 0xff 0xc8c8c8ff 0xff 0xff 0xffffffff 0xff"_s);
    }
    void eachTypeIsShownAndWrittenBack()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, type);
        QFETCH(QString, text);
        Holder shown(value);
        QCOMPARE(toQString(shown.field->getObjectType().getName()), type);
        if (!text.isNull())
            QCOMPARE(shown.text(), text);
        QVERIFY(!shown.field->isReadOnly());
        // What is looked at stays as it is, and so does the rest of a value that changes back.
        QCOMPARE(shown.value(), value);
        text = shown.text();
        QVERIFY(shown.field->set("\"\""));
        QVERIFY(shown.value() != value);
        Holder other(shown.value()); // which has never seen the value
        QVERIFY(other.field->set(toKbString(text)));
        QCOMPARE(other.text(), text);
        const QVariant back = other.value();
        if (value.metaType() == QMetaType::fromType<QImage>())
            QCOMPARE(back.value<QImage>().convertToFormat(value.value<QImage>().format()),
                value.value<QImage>());
        else if (value.metaType() == QMetaType::fromType<QQuaternion>())
            QVERIFY(qFuzzyCompare(back.value<QQuaternion>(), value.value<QQuaternion>()));
        else
            QCOMPARE(back, value);
        QCOMPARE(back.metaType(), value.metaType());
    }

    void theCLocaleComesBackWhateverItsOptions()
    {
        QLocale locale = QLocale::c();
        locale.setNumberOptions(QLocale::DefaultNumberOptions); // as that of a program has them
        Holder shown(locale);
        QCOMPARE(shown.text(), u"C"_s);
        QVERIFY(shown.field->set("de-AT"));
        QVERIFY(shown.field->set("C"));
        QCOMPARE(shown.value().toLocale().language(), QLocale::C);
    }

    void aTimeZoneHasItsName()
    {
        const QTimeZone zone("Europe/Berlin");
        if (!zone.isValid())
            QSKIP("the system knows no time zones");
        const QDateTime time(QDate(2030, 7, 1), QTime(1, 2), zone);
        Holder shown(time);
        QCOMPARE(shown.text(), u"2030-07-01T01:02:00.000 Europe/Berlin"_s);
        QVERIFY(shown.field->set("2030-07-01T03:00:00.000 Europe/Berlin"));
        QCOMPARE(shown.value().toDateTime(), time.addSecs(118 * 60));
        QCOMPARE(shown.value().toDateTime().timeZone(), zone);
    }

    void aBadTextChangesNothing_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QByteArray>("bad");
        const auto row = [](const QVariant& value, const char* bad) {
            QTest::newRow(bad) << value << QByteArray(bad);
        };
        row(QSizePolicy(), "Fixed Sometimes");
        row(QSizePolicy(), "Fixed Fixed stretch 256 0");
        row(QSizePolicy(), "Fixed Fixed stretch 1");
        row(QSizePolicy(), "Fixed Fixed often");
        row(QRegularExpression(), "/a");
        row(QRegularExpression(), "/a/q");
        row(QBitArray(1), "012");
        row(QVariant::fromValue(QList<bool> { true }), "[ \"maybe\" ]");
        row(QPolygon(), "1 2, 3");
        row(QRegion(), "1 2 3 4, 5");
        row(QEasingCurve(), "InElastic 1 2");
        row(QEasingCurve(), "BezierSpline");
        row(QVariant::fromValue(QVersionNumber(1)), "1.b");
        row(QJsonValue(true), "1, 2");
        row(QJsonObject(), "[1]");
        row(QPen(), "red 1 SolidLine FlatCap");
        row(QBrush(), "LinearGradientPattern:red");
        row(QFont(), "Sans,1,2");
        row(QPalette(), "Window");
        row(QPalette(), "Window red green blue white");
        row(QPalette(), "Window reddish");
        row(QVariantMap(), "{ \"a\": }");
        row(QVariantMap(), "QVariantHash { }");
        row(QColor(), "hsv:0.5:2:1:1");
        row(QColor(), "cmyk:0:0:x:0:1");
        row(QDate(2030, 1, 1), "JD x");
        QTest::addRow("too large") << QVariant::fromValue(uchar(1)) << QByteArray("256");
        QTest::addRow("beyond 64 bits") << QVariant(qint64(1)) << QByteArray("9223372036854775808");
        QTest::addRow("three of four") << QVariant(QRect(1, 2, 3, 4)) << QByteArray("1 2 3");
        QTest::addRow("half a number") << QVariant(QRect(1, 2, 3, 4)) << QByteArray("1 2 3 4.5");
        QTest::addRow("bytes") << QVariant(QByteArray("a")) << QByteArray("\\x4");
        QTest::addRow("unknown byte") << QVariant(QByteArray("a")) << QByteArray("\\q41");
        QTest::addRow("date") << QVariant(QDate(2030, 1, 1)) << QByteArray("2030-02-30");
        QTest::addRow("keys") << QVariant::fromValue(QKeySequence(Qt::Key_A))
                              << QByteArray("Ctrl+Hm");
        QTest::addRow("locale") << QVariant(QLocale(QLocale::German)) << QByteArray("nowhere");
        QTest::addRow("uuid") << QVariant(QUuid::createUuid()) << QByteArray("12");
        QTest::addRow("zone") << QVariant(QDateTime(QDate(2030, 1, 1), QTime(1, 1)))
                              << QByteArray("2030-01-01T01:01:00 Nowhere/Else");
        QTest::addRow("color") << QVariant(QColor(Qt::red)) << QByteArray("1 2");
        QTest::addRow("enum") << QVariant::fromValue(Qt::WaitCursor) << QByteArray("NoCursor");
    }
    void aBadTextChangesNothing()
    {
        QFETCH(QVariant, value);
        QFETCH(QByteArray, bad);
        Holder shown(value);
        const QString before = shown.text();
        const KnReadErrorCapture capture;
        QVERIFY(!shown.field->set(bad.constData()));
        QVERIFY(!capture.getText().isEmpty());
        QCOMPARE(shown.value(), value);
        QCOMPARE(shown.text(), before);
    }

    void whatCantBeReadBackIsReadOnly_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("type");
        QPixmap pixmap(4, 4);
        pixmap.fill(Qt::red);
        const auto row = [](const char* name, const QVariant& value, const char* type) {
            QTest::addRow("%s", name) << value << QString::fromLatin1(type);
        };
        row("icon", QIcon(pixmap), "SFImage");
        row("object", QVariant::fromValue(qobject_cast<QObject*>(this)), "SFObject");
        row("objects", QVariant::fromValue(QObjectList { this, this }), "MFObject");
        row("pictures", QVariant::fromValue(QList<QPixmap> { pixmap }), "MFDescription");
        row("map with a picture", QVariantMap { { u"a"_s, pixmap } }, "SFVariantMap");
        row("list with a picture", QVariantList { 1, pixmap }, "MFVariant");
        row("gradient", QVariant::fromValue(QBrush(QLinearGradient(0, 0, 1, 1))), "SFBrush");
        row("palette with a texture", QPalette(QBrush(pixmap), pixmap, {}, {}, {}, {}, {}, {}, {}),
            "SFPalette");
        row("cursor with a picture", QCursor(pixmap), "SFCursor");
        row("curve of points", QEasingCurve(QEasingCurve::BezierSpline), "SFEasingCurve");
        row("format", QTextFormat(QTextFormat::CharFormat), "SFDescription");
    }
    void whatCantBeReadBackIsReadOnly()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, type);
        Holder shown(value);
        QCOMPARE(toQString(shown.field->getObjectType().getName()), type);
        QVERIFY(!shown.text().isEmpty() && shown.text() != u"0 0 0"_s);
        QVERIFY(shown.field->isReadOnly());
        const KnReadErrorCapture capture;
        QVERIFY(!shown.field->set("\"\""));
        QCOMPARE(identity(shown.value()), identity(value));
    }

    // What the field's editor can't say comes back with the step all the same.
    void anEditAndItsUndoGiveBackTheVeryValue_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("edit");
        const auto row = [](const char* name, const QVariant& value, const char* edit) {
            QTest::addRow("%s", name) << value << QString::fromUtf8(edit);
        };
        row("null string", QString(), "\"a\"");
        row("null string in a list", QStringList { u"a"_s, QString() }, "[ \"b\" ]");
        row("null bytes", QByteArray(), "a");
        row("hsv", QColor::fromHsvF(0.123F, 0.4F, 0.5F), "1 0 0 1");
        row("cmyk in a list", QVariant::fromValue(QList<QColor> { QColor::fromCmyk(1, 2, 3, 4) }),
            "[ 1 0 0 1 ]");
        row("invalid color", QColor(), "#ff0000");
        row("rotation", QQuaternion(0.8F, 0.6F, 0, 0), "0 1 0 1.5");
        row("long quaternion", QQuaternion(1, 2, 3, 4), "1 0 0 0.5");
        QFont font(u"Serif"_s);
        font.setHintingPreference(QFont::PreferNoHinting);
        row("font", font, "Sans,20,-1,5,400,0,0,0,0,0,0,0,0,0,0,1");
        QPalette palette;
        palette.setColor(QPalette::Window, QColor::fromHsv(10, 20, 30));
        row("palette", palette, "Window #ff0000");
        QLocale locale(QLocale::German);
        locale.setNumberOptions(QLocale::OmitGroupSeparator);
        row("locale", locale, "fr");
        const QTimeZone zone("Europe/Berlin");
        const QDateTime late = QDateTime(QDate(2030, 10, 27), QTime(1, 30), Qt::UTC);
        row("hour that comes twice", late.toTimeZone(zone), "2030-01-01T00:00:00.000 UTC");
        row("url that is none", QUrl(u"http://a:b:c"_s), "\"http://a\"");
        QImage deep(2, 2, QImage::Format_RGBA64);
        deep.fill(QColor(QRgba64::fromRgba64(1, 2, 3, 40000)));
        deep.setDotsPerMeterX(1234);
        row("picture of 16 bits", deep, "1 1 1 0x5");
        row("list of variants", QVariantList { QString(), 0.1F, QVariant(), QRect(1, 2, 3, 4) },
            "[ \"1\", \"QUrl \\\"http://b\\\"\" ]");
        row("fonts", QVariant::fromValue(QList<QFont> { font }), "[ ]");
        row("bools", QVariant::fromValue(QList<bool> { true, false }), "[ \"false\", \"1\" ]");
    }
    void anEditAndItsUndoGiveBackTheVeryValue()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, edit);
        Holder shown(value);
        QCOMPARE(identity(shown.value()), identity(value));
        const QString before = shown.text();
        const QString kind = toQString(shown.field->getObjectType().getName());
        KnField* const field = shown.field;
        QVERIFY(field->set(toKbString(edit)));
        QVERIFY(identity(shown.value()) != identity(value));
        const QVariant edited = shown.value();
        QVERIFY(field->set(toKbString(before)));
        QCOMPARE(identity(shown.value()), identity(value));
        // Redone, undone.
        QVERIFY(field->set(toKbString(edit)));
        QCOMPARE(identity(shown.value()), identity(edited));
        QVERIFY(field->set(toKbString(before)));
        QCOMPARE(identity(shown.value()), identity(value));
        QCoreApplication::processEvents();
        QCOMPARE(toQString(shown.current()->getObjectType().getName()), kind);
    }

    void rowsThatArentEditedKeepTheirVeryValue()
    {
        const QColor hsv = QColor::fromHsvF(0.123F, 0.4F, 0.5F);
        Holder shown(QVariant::fromValue(QList<QColor> { hsv, Qt::red, hsv, QColor() }));
        auto& rows = dynamic_cast<KnMField&>(*shown.field);
        shown.text();
        QVERIFY(rows.set1(1, "0 1 0 1"));
        QCOMPARE(shown.value().value<QList<QColor>>(),
            (QList<QColor> { hsv, QColor(0, 255, 0), hsv, QColor() }));
        rows.removeValues(0, 1);
        QCOMPARE(shown.value().value<QList<QColor>>(),
            (QList<QColor> { QColor(0, 255, 0), hsv, QColor() }));

        QFont hinted(u"Sans"_s);
        hinted.setHintingPreference(QFont::PreferNoHinting);
        Holder texts(QVariant::fromValue(QList<QFont> { QFont(), hinted, QFont(), hinted }));
        texts.text();
        KbString kept;
        dynamic_cast<KnMField&>(*texts.field).get1(1, kept);
        const QString edited = u"\"Sans,20,-1,5,400,0,0,0,0,0,0,0,0,0,0,1\""_s;
        QVERIFY(texts.field->set(toKbString(u"[ %1, %2, %1, %2 ]"_s.arg(edited, toQString(kept)))));
        const auto fonts = texts.value().value<QList<QFont>>();
        QCOMPARE(identity(fonts[1]), identity(hinted));
        QCOMPARE(identity(fonts[3]), identity(hinted));
    }

    void anEditOfAFontLeavesWhatItDoesntSay()
    {
        QFont font;
        font.setHintingPreference(QFont::PreferNoHinting);
        Holder shown(font);
        QVERIFY(shown.field->set(toKbString(shown.text().replace(u",400,"_s, u",700,"_s))));
        const auto edited = shown.value().value<QFont>();
        QCOMPARE(edited.weight(), QFont::Bold);
        QCOMPARE(edited.hintingPreference(), QFont::PreferNoHinting);
        QCOMPARE(edited.resolveMask(), font.resolveMask() | QFont::WeightResolved);
    }

    void aValueOfAnotherTypeGetsAnotherField_data()
    {
        QTest::addColumn<QVariant>("first");
        QTest::addColumn<QVariant>("second");
        QTest::addColumn<QString>("type");
        QTest::addRow("variant") << QVariant(1) << QVariant(u"a"_s) << u"SFString"_s;
        QTest::addRow("color") << QVariant(QColor(Qt::red)) << QVariant(QColor())
                               << u"SFColorText"_s;
        QTest::addRow("quaternion")
            << QVariant(QQuaternion()) << QVariant(QQuaternion(1, 2, 3, 4)) << u"SFQuaternion"_s;
    }
    void aValueOfAnotherTypeGetsAnotherField()
    {
        QFETCH(QVariant, first);
        QFETCH(QVariant, second);
        QFETCH(QString, type);
        Holder shown(first);
        const QString before = shown.text();
        shown.object.setProperty("value", second);
        QCoreApplication::processEvents();
        QVERIFY(shown.current() != shown.field);
        QCOMPARE(toQString(shown.current()->getObjectType().getName()), type);
        const KnFieldData* const table = shown.node->getContainerFieldData();
        QCOMPARE(table->getIndex(shown.node.get(), shown.field), table->getIndex("value"));
        // The old one shows what it has shown, and comes back with its type.
        QCOMPARE(shown.text(), before);
        shown.object.setProperty("value", first);
        QCoreApplication::processEvents();
        QCOMPARE(shown.current(), shown.field);
    }

    void aNanIsNoChange()
    {
        Holder shown(std::nan(""));
        KnFieldSensor sensor(nullptr, nullptr);
        sensor.attach(shown.field);
        QCOMPARE(shown.text(), u"nan"_s);
        sensor.detach();
        sensor.attach(shown.field);
        shown.text();
        QVERIFY(KnSensorQueue::getInstance().isEmpty());
    }
};

QTEST_MAIN(TestObjectValues)
#include "test_object_values.moc"
