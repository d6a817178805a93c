// SPDX-License-Identifier: BSD-3-Clause
#include "CrvExtension.h"
#include "CrvPlugin.h"
#include "CrvPluginsManager.h"
#include "CrvServices.h"
#include "CrvStrings.h"
#include "KbMemory.h"
#include "KnError.h"
#include "KnTestNode.h"
#include "TestShell.h"

#include <QCheckBox>
#include <QDockWidget>
#include <QFile>
#include <QLibrary>
#include <QTest>
#include <QTextEdit>
#include <QUndoStack>

#include <algorithm>
#include <iostream>

using namespace Qt::StringLiterals;

namespace {

template <class Described>
QString identity(const Described& object)
{
    return toQString(object.getName()) + u'|' + toQString(object.getDescription()) + u'|'
        + toQString(object.getAuthor()) + u'|' + toQString(object.getVersion());
}

/// Each with its class, after which an editor is named.
QStringList described(const std::vector<CrvExtension*>& extensions)
{
    QStringList all;
    for (const CrvExtension* each : extensions) {
        const QString className = QLatin1String(each->metaObject()->className());
        const QString name = each->objectName();
        all << identity(*each) + u'|' + (name.isEmpty() ? className : name);
    }
    return all;
}

/// A shell whose window outlives the plug-in's file.
class ModuleShell : public TestShell {
public:
    void addDockWidget(QDockWidget* dock, int area) override
    {
        // The main window remembers the name of a dock that is gone. A literal would go with the
        // file, which is why the file stays mapped; where it does not, the name has to be a copy.
        const QString name = dock->objectName();
        dock->setObjectName(QString()); // an equal name would be refused
        dock->setObjectName(QString(name.constData(), name.size()));
        TestShell::addDockWidget(dock, area);
    }
};

} // namespace

/// What a host sees of the plug-in that has nothing but its file, and a node with a field of every
/// type. CORVANE_MODULE_STAYS says whether the file stays mapped when it is unloaded; where it
/// doesn't, whatever still pointed into it would end the process.
class TestModule : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        m_node->ref();
        m_shell.window().show();
    }
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support )"_s));
        CrvPluginsManager::getInstance()->useBuiltInProfiles();
    }
    void cleanup() { CrvPluginsManager::getInstance()->unloadAll(); }
    void cleanupTestCase() { m_node->unref(); }

    void pluginAndExtensionsNameThemselves()
    {
        const CrvPlugin* const plugin = load();
        QVERIFY(plugin);
        QCOMPARE(identity(*plugin),
            u"CrvDefaults|Plug-in which loads Corvane default extensions.|Orbel|1.0.0"_s);
        QStringList expected
            = u"MFColor,MFColorRGBA,MField,MFDouble,SFFilePathString,MFFloat,MFInt32,MFMatrix,"
              "MFPlane,MFRotation,MFShort,MFString,MFUInt32,MFUShort,MFVec2f,MFVec2i32,MFVec2s,"
              "MFVec3f,MFVec4f,SFBitMask,SFBool,SFBox2f,SFBox3s,SFColor,SFColorRGBA,SFEnum,"
              "SFDouble,SFFloat,SFImage,SFInt32,SField,SFMatrix,SFName,SFPlane,SFRotation,SFShort,"
              "SFString,SFUInt32,SFUShort,SFVec2f,SFVec2i32,SFVec2s,SFVec3f,SFVec4f"_s.split(u',');
        expected.replaceInStrings(QRegularExpression(u"(.+)"_s),
            u"\\1|Field Editor for Corvane.|Orbel|1.0.0|Wf\\1Widget"_s);
        expected.replaceInStrings(u"WfMField"_s, u"WfMFDefaultField"_s);
        expected.replaceInStrings(u"WfSField"_s, u"WfSFLine"_s);
        expected.prepend(u"Console|A console which prints the standard output and error.|Orbel|"
                         "1.0.0|CrvConsole"_s);
        expected.prepend(u"Profile Selector|A toolbar to select the active profile.|Orbel|1.0.0|"
                         "CrvProfileSelectorExtension"_s);
        expected << u"Field Editor|Field Editor for Corvane.|Orbel|1.0.0|CrvFieldEditorDockWin"_s
                 << u"Node Editor|Node Editor for Corvane.|Orbel|1.0.0|CrvNodeEditor"_s;
        std::vector<CrvExtension*> members = plugin->getExtensions();
        QCOMPARE(described(members), expected);
        // A dock walks the editors by address, in which one has a place of its own.
        std::sort(members.begin(), members.end());
        expected.move(6, expected.indexOf(QRegularExpression(u"^SFDouble.*"_s)));
        QCOMPARE(described(members), expected);
    }

    void thePluginObjectIsMadeAnewEachTime()
    {
        QLibrary library(QStringLiteral(CORVANE_MODULE_FILE));
        const auto unloadPlugin = CrvUnloadPluginFunction(library.resolve("unloadPlugin"));
        unloadPlugin(); // there is none
        for (int round = 0; round < 2; ++round) {
            CrvPlugin* const plugin = CrvLoadPluginFunction(library.resolve("loadPlugin"))();
            QVERIFY(plugin && plugin->getExtensions().empty());
            unloadPlugin();
            unloadPlugin();
        }
    }

    void unloadingLeavesNothingBehind()
    {
        const std::pair streams(std::cout.rdbuf(), std::cerr.rdbuf());
        const KnErrorCallback handler = KnError::getHandlerCallback();
        const int rounds = CORVANE_MODULE_STAYS ? 50 : 200;
        for (int i = 0; i < rounds; ++i) {
            const KbAllocationCount before = allocationCount();
            QVERIFY(load() && allocationCount().calls > before.calls);
            QVERIFY(isMapped() && KnError::getHandlerCallback() != handler);
            use(i == 0);
            QVERIFY(!QTest::currentTestFailed());
            CrvPluginsManager::getInstance()->unloadAll();
            TestShell::settle();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCOMPARE(isMapped(), CORVANE_MODULE_STAYS);
            QVERIFY(std::pair(std::cout.rdbuf(), std::cerr.rdbuf()) == streams);
            QVERIFY(KnError::getHandlerCallback() == handler);
            QVERIFY(m_shell.extensions().isEmpty());
            QCOMPARE(QApplication::topLevelWidgets(), QWidgetList { &m_shell.window() });
        }

        std::cout << "text behind the last unloading" << std::endl;
        QTest::keyClick(&m_shell.window(), Qt::Key_Tab);
        TestShell::settle();
    }

private:
    static CrvPlugin* load()
    {
        return CrvPluginsManager::getInstance()->loadPlugin(QStringLiteral(CORVANE_MODULE_FILE));
    }
    /// Uses the plug-in as a person would: shows every field of the node (only a handful if
    /// `everyField` is false), clicks the check box of the bool field, undoes, prints to the
    /// console and reports an error.
    void use(bool everyField)
    {
        const KnFieldData* const data = m_node->getContainerFieldData();
        for (int i = 0; i < data->getNum(); i += everyField ? 1 : 9)
            select(data->getField(m_node, i));

        select(&m_node->SFBool);
        m_shell.window().findChild<QCheckBox*>(u"m_box"_s)->click();
        QVERIFY(m_node->SFBool.getValue());
        CrvServices::getInstance()->getUndoStack()->undo();
        QVERIFY(!m_node->SFBool.getValue());

        std::cout << "printed" << std::endl;
        KnError::post("reported");
        TestShell::settle();
        const auto* const view = m_shell.window().findChild<QTextEdit*>(u"m_consoleOutput"_s);
        QCOMPARE(view->toPlainText(), u"printed\n\nreported"_s);
    }
    static void select(KnField* field)
    {
        CrvServices::getInstance()->selectField(field);
        TestShell::settle();
    }
    static bool isMapped()
    {
        QFile maps(u"/proc/self/maps"_s);
        return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(CORVANE_MODULE_FILE);
    }

    ModuleShell m_shell;
    KnTestNode* m_node = new KnTestNode; // a reference is held
};

QTEST_MAIN(TestModule)
#include "test_module.moc"
