// SPDX-License-Identifier: BSD-3-Clause
#include "CrvExtension.h"
#include "CrvPlugin.h"
#include "KbMemory.h"
#include "KnError.h"
#include "ModuleRun.h"

#include <QTest>

#include <iostream>

namespace {

struct ExtensionRow {
    const char* name;
    const char* description;
};

constexpr const char* fieldEditor = "Field Editor for Corvane.";

/// All extensions in the order of their registration.
constexpr ExtensionRow extensionRows[] = {
    { "Profile Selector", "A toolbar to select the active profile." },
    { "Console", "A console which prints the standard output and error." },
    { "MFColor", fieldEditor },
    { "MFColorRGBA", fieldEditor },
    { "MField", fieldEditor },
    { "MFDouble", fieldEditor },
    { "SFFilePathString", fieldEditor },
    { "MFFloat", fieldEditor },
    { "MFInt32", fieldEditor },
    { "MFMatrix", fieldEditor },
    { "MFPlane", fieldEditor },
    { "MFRotation", fieldEditor },
    { "MFShort", fieldEditor },
    { "MFString", fieldEditor },
    { "MFUInt32", fieldEditor },
    { "MFUShort", fieldEditor },
    { "MFVec2f", fieldEditor },
    { "MFVec2i32", fieldEditor },
    { "MFVec2s", fieldEditor },
    { "MFVec3f", fieldEditor },
    { "MFVec4f", fieldEditor },
    { "SFBitMask", fieldEditor },
    { "SFBool", fieldEditor },
    { "SFBox2f", fieldEditor },
    { "SFBox3s", fieldEditor },
    { "SFColor", fieldEditor },
    { "SFColorRGBA", fieldEditor },
    { "SFEnum", fieldEditor },
    { "SFDouble", fieldEditor },
    { "SFFloat", fieldEditor },
    { "SFImage", fieldEditor },
    { "SFInt32", fieldEditor },
    { "SField", fieldEditor },
    { "SFMatrix", fieldEditor },
    { "SFName", fieldEditor },
    { "SFPlane", fieldEditor },
    { "SFRotation", fieldEditor },
    { "SFShort", fieldEditor },
    { "SFString", fieldEditor },
    { "SFUInt32", fieldEditor },
    { "SFUShort", fieldEditor },
    { "SFVec2f", fieldEditor },
    { "SFVec2i32", fieldEditor },
    { "SFVec2s", fieldEditor },
    { "SFVec3f", fieldEditor },
    { "SFVec4f", fieldEditor },
    { "Field Editor", fieldEditor },
    { "Node Editor", "Node Editor for Corvane." },
};
static_assert(std::size(extensionRows) == 48);

QString identity(const char* name, const char* description)
{
    return QStringLiteral("%1|%2|Orbel|1.0.0").arg(QLatin1String(name), QLatin1String(description));
}

template <class Described>
QString identity(const Described& object)
{
    QStringList parts;
    for (const KbString& part :
        { object.getName(), object.getDescription(), object.getAuthor(), object.getVersion() })
        parts += QString::fromStdU16String(part.toUtf16());
    return parts.join(QLatin1Char('|'));
}

} // namespace

/// What a host sees of the plug-in that has nothing but its file.
class TestModule : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pluginAndExtensionsNameThemselves();
    void fileStaysMapped();
    void allocationsAreCounted();
    void everyFieldCanBeShown();
    void unloadingLeavesNothingBehind();

private:
    const QString m_fileName = QStringLiteral(CORVANE_MODULE_FILE);
};

void TestModule::init()
{
    QTest::failOnWarning(
        QRegularExpression(QStringLiteral("^(?!This plugin does not support propagateSizeHints)")));
}

void TestModule::pluginAndExtensionsNameThemselves()
{
    ModuleRun run(m_fileName);
    const CrvPlugin* const plugin = run.load();
    QVERIFY(plugin);
    QCOMPARE(identity(*plugin),
        identity("CrvDefaults", "Plug-in which loads Corvane default extensions."));
    QStringList actual;
    for (const CrvExtension* extension : plugin->getExtensions())
        actual += identity(*extension);
    QStringList expected;
    for (const ExtensionRow& row : extensionRows)
        expected += identity(row.name, row.description);
    QCOMPARE(actual, expected);
}

void TestModule::fileStaysMapped()
{
    ModuleRun run(m_fileName);
    QVERIFY(run.load());
    QVERIFY(run.isMapped());
    run.unload();
    QVERIFY(run.isMapped());
}

void TestModule::allocationsAreCounted()
{
    ModuleRun run(m_fileName);
    const KbAllocationCount before = allocationCount();
    QVERIFY(run.load());
    const KbAllocationCount after = allocationCount();
    QVERIFY(after.calls > before.calls);
    QVERIFY(after.bytes > before.bytes);
}

void TestModule::everyFieldCanBeShown()
{
    ModuleRun run(m_fileName);
    QVERIFY(run.load());
    run.use(true);
}

void TestModule::unloadingLeavesNothingBehind()
{
    ModuleRun run(m_fileName);
    std::streambuf* const output = std::cout.rdbuf();
    std::streambuf* const errors = std::cerr.rdbuf();
    const KnErrorCallback handler = KnError::getHandlerCallback();
    for (int i = 0; i < 50; ++i) {
        QVERIFY(run.load());
        QVERIFY(KnError::getHandlerCallback() != handler);
        run.use(false);
        if (QTest::currentTestFailed())
            return;
        run.unload();
        QVERIFY(std::cout.rdbuf() == output);
        QVERIFY(std::cerr.rdbuf() == errors);
        QVERIFY(KnError::getHandlerCallback() == handler);
        QVERIFY(run.shell().extensions().isEmpty());
        QCOMPARE(QApplication::topLevelWidgets(), QWidgetList { &run.shell().window() });
    }
}

QTEST_MAIN(TestModule)
#include "test_module.moc"
