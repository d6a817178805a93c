// SPDX-License-Identifier: BSD-3-Clause
#include "CrvJsonTree.h"
#include "CrvProfileReader.h"
#include "CrvStrings.h"
#include "SceneDocument.h"
#include "SceneReader.h"
#include "TextRows.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// In which both readers agree.
QString errorOf(const QString& fileName)
{
    SceneReader scenes;
    CrvProfileReader profiles;
    scenes.readFile(fileName);
    profiles.readFile(fileName);
    return scenes.errorText() == profiles.errorText() ? scenes.errorText() : u"differs"_s;
}

void writeFile(const QString& fileName, const QByteArray& content)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s can't be written", qPrintable(fileName));
}

/// As Qt sees it; a number is only compared, since nobody needs it as such.
bool isSame(const CrvJsonValue& value, const QJsonValue& expected)
{
    if (expected.isDouble())
        return value.isNumber(expected.toDouble());
    if (expected.isString())
        return value.isString() && value.toQString() == expected.toString()
            && toQString(value.toKbString()) == expected.toString();
    if (expected.isArray()) {
        const QJsonArray array = expected.toArray();
        qsizetype index = 0;
        for (const CrvJsonValue element : value) {
            if (index >= array.size() || !isSame(element, array.at(index++)))
                return false;
        }
        return value.isArray() && index == array.size() && index == value.count();
    }
    if (expected.isObject()) {
        const QJsonObject object = expected.toObject();
        QSet<QString> names;
        const auto end = value.end();
        for (auto it = value.begin(); it != end; ++it)
            names.insert(it.name().toQString());
        for (const QString& name : names) {
            const QByteArray utf8 = name.toUtf8();
            const bool isAscii = utf8.size() == name.size();
            if (!object.contains(name)
                || (isAscii && !isSame(value.member(QLatin1String(utf8)), object.value(name))))
                return false;
        }
        return value.isObject() && names.size() == object.size();
    }
    return value.isBool() == expected.isBool() && value.toBool() == expected.toBool()
        && !value.isString() && value.count() == 0;
}

void compareWithQt(const QByteArray& text)
{
    QJsonParseError error;
    const QJsonDocument expected = QJsonDocument::fromJson(text, &error);
    const bool isJson = error.error == QJsonParseError::NoError;
    CrvJsonTree tree;
    const bool parsed = tree.parse(text, &error);
    const QJsonValue root
        = expected.isArray() ? QJsonValue(expected.array()) : QJsonValue(expected.object());
    if (parsed != isJson || (parsed && !isSame(tree.root(), root)))
        QFAIL("differs from Qt: " + text);
}

/// Lets the process have no more than so many bytes on top of what it has; gives the former limit.
rlimit limitMemory(rlim_t more)
{
    rlimit former {};
    getrlimit(RLIMIT_AS, &former);
    QFile file(u"/proc/self/statm"_s);
    const bool opened = file.open(QIODevice::ReadOnly);
    const rlim_t pages = opened ? file.readAll().split(' ').constFirst().toULong() : 0;
    const rlimit limit { pages * static_cast<rlim_t>(getpagesize()) + more, former.rlim_max };
    setrlimit(RLIMIT_AS, &limit);
    return former;
}

} // namespace

/// What all JSON files have in common, whoever reads them.
class TestJsonFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void mistakes_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("place");
        const auto row = [](const char* name, const QByteArray& json, const char* place) {
            QTest::newRow(name) << json << QString::fromLatin1(place);
        };
        row("a key without quotes", "{ a: 1}", "1:3");
        row("no comma in an object", "{\n \"a\": 1\n \"b\": 2}", "3:2");
        row("a comma too many", "[1, ]\n", "1:5");
        row("an array without end", "[1,\n", "2:1");
        row("a string without end", "{\"a\": \"b}", "1:10");
        row("a bad number", "[-]", "1:3");
        row("illegal UTF-8", "[\"\xc3\xa9\xff\"]", "1:5");
        row("text behind the document", "{}\n\n x", "3:2");
        row("too deep", "\n" + QByteArray(1100, '['), "2:1025");
    }
    void mistakes()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, place);
        const QString file = m_folder->filePath(u"bad.json"_s);
        writeFile(file, json);
        const QString start = file + u':' + place + u": "_s;
        QCOMPARE(errorOf(file).left(start.size()), start);
    }

    // Whoever reads what Qt's parser takes must neither take more nor find other values in it.
    void agreesWithQt_data()
    {
        addTextRows({
            { "structure", " {'a':[1,{},[],{'b':null}] , '':[true,false],'a':2}\n" },
            { "escapes", "['\\'\\\\\\/\\b\\f\\n\\r\\t','\\u00e9\\ud83d\\ude00\\uDC00x']" },
            { "not quite JSON", "{'\\q':['\\uD800x',-1.5,{}],'a\n':[true,false,null],'':{'b':1}}" },
            { "utf-8", "['\u00fc\u20ac\U0001F600\u0800\uFFFF\U0010FFFF']" },
        });
    }
    void agreesWithQt()
    {
        const QByteArray text = textRow<2>()[1].toUtf8().replace('\'', '"');
        for (const QByteArray& prefix : { QByteArray(), QByteArray("\xEF\xBB\xBF") })
            compareWithQt(prefix + text);
        // And after any small mistake.
        const QByteArray put("\"\\{}[]:,0-. e\x01n\x80\xC0\xE0\xED\xA0\xF0\xF4\xFF\0", 24);
        for (qsizetype i = 0; i < text.size(); ++i) {
            compareWithQt(QByteArray(text).remove(i, 1));
            compareWithQt(text.left(i));
            for (const char c : put) {
                compareWithQt(QByteArray(text).insert(i, c));
                compareWithQt(QByteArray(text).replace(i, 1, QByteArray(1, c)));
            }
        }
        for (const char* const number : { "0", "-0", "01", "1.5e+3", "1E-5", "1.", ".5", "-", "+1",
                 "1e", "1e999", "-.5", "1.e1", "00", "0x1", "inf" })
            compareWithQt('[' + QByteArray(number) + ']');
        for (const int depth : { 1024, 1025 })
            compareWithQt(QByteArray(depth, '[') + QByteArray(depth, ']'));
    }

    void notReadable_data()
    {
        const QByteArray broken = qt_error_string(EIO).toUtf8(); // in the person's language
        addTextRows({ { "missing", "No such file or directory" }, { "empty", "the file is empty" },
            { "closed", "Permission denied" }, { "folder", "this is a directory, not a file" },
            { "link to pipe", "this is a pipe, not a file" },
            { "socket", "this is a socket, not a file" },
            { "/proc/self/mem", broken.constData() }, // once it is open
            { "/dev/zero", "this is a device, not a file" },
            { "huge", "the file is too large, at most 1073741824 bytes are read" } });
    }
    void notReadable()
    {
        const auto [name, reason] = textRow<2>();
        const QDir folder(m_folder->path());
        for (const QString& made : { u"empty"_s, u"closed"_s, u"huge"_s })
            writeFile(folder.filePath(made), {});
        QFile::setPermissions(folder.filePath(u"closed"_s), {});
        QVERIFY(QFile::resize(folder.filePath(u"huge"_s), CrvJsonReader::maxFileSize + 1));
        QVERIFY(folder.mkdir(u"folder"_s));
        QCOMPARE(mkfifo(QFile::encodeName(folder.filePath(u"pipe"_s)), 0600), 0);
        QFile::link(u"pipe"_s, folder.filePath(u"link to pipe"_s));
        QCOMPARE(mknod(QFile::encodeName(folder.filePath(u"socket"_s)), S_IFSOCK | 0600, 0), 0);

        if (name == u"closed"_s && geteuid() == 0)
            QSKIP("root may read everything");
        const QString file = folder.filePath(name);
        QCOMPARE(errorOf(file), file + u": "_s + reason);
    }

    // Reading, parsing and building each run out of memory somewhere on the way.
    void memoryRunsOut_data()
    {
        QTest::addColumn<int>("megabytes");
        for (const int megabytes : { 1, 16, 32, 64, 128, 2048 })
            QTest::addRow("%d MB", megabytes) << megabytes;
    }
    void memoryRunsOut()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("the address sanitizer has memory of its own, and ends where there is none");
#endif
        QFETCH(int, megabytes);
        constexpr int fileMegabytes = 20;
        const QString file = m_folder->filePath(u"large.json"_s);
        const QByteArray point("0.1234 0.5678 1,");
        writeFile(file,
            R"({ "format": "corvane-scene", "version": 1, "root":
                { "type": "Coordinates", "fields": { "point": "[)"
                + point.repeated((fileMegabytes << 20) / point.size()) + R"(]" } } })");
        SceneDocument document;
        QString error;
        QVERIFY(document.open(QStringLiteral(CORVANE_SCENES "/station.json"), &error));
        const KnNodePtr root = document.root();
        const rlimit former = limitMemory(static_cast<rlim_t>(megabytes) << 20);
        const bool opened = document.open(file, &error);
        CrvProfileReader profiles;
        profiles.readFile(file);
        setrlimit(RLIMIT_AS, &former);
        const QString outOfMemory = file + u": there is not enough memory to read the file"_s;
        QVERIFY2(opened || error == outOfMemory, qPrintable(error));
        QCOMPARE(document.root().get() != root.get(), opened);
        QVERIFY(megabytes < 1024 || opened);
        // There isn't even room for the file itself.
        QVERIFY(megabytes >= fileMegabytes || (!opened && profiles.errorText() == outOfMemory));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestJsonFiles)
#include "test_json_files.moc"
