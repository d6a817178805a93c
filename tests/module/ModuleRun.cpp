// SPDX-License-Identifier: BSD-3-Clause
#include "ModuleRun.h"

#include "CrvPluginsManager.h"
#include "CrvServices.h"
#include "KnError.h"
#include "KnSensorQueue.h"

#include <QCheckBox>
#include <QDockWidget>
#include <QFile>
#include <QTest>
#include <QTextEdit>
#include <QUndoStack>

#include <iostream>

void ModuleShell::addDockWidget(QDockWidget* dock, int area)
{
    // The main window remembers the name of a dock that is gone. A literal would go with the file,
    // which is why the file stays mapped; where it does not, the name has to be a copy.
    const QString name = dock->objectName();
    dock->setObjectName(QString()); // an equal name would be refused
    dock->setObjectName(QString(name.constData(), name.size()));
    TestShell::addDockWidget(dock, area);
}

ModuleRun::ModuleRun(const QString& fileName)
    : m_fileName(fileName)
    , m_node(new KnTestNode)
{
    m_node->ref();
    CrvPluginsManager::getInstance()->useBuiltInProfiles();
    m_shell.window().show();
}

ModuleRun::~ModuleRun()
{
    unload();
    m_node->unref();
}

CrvPlugin* ModuleRun::load()
{
    QString error;
    CrvPlugin* const plugin = CrvPluginsManager::getInstance()->loadPlugin(m_fileName, &error);
    if (!plugin)
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    return plugin;
}

void ModuleRun::use(bool everyField)
{
    const KnFieldData* const data = m_node->getContainerFieldData();
    const int step = everyField ? 1 : 9;
    for (int i = 0; i < data->getNum(); i += step)
        select(data->getField(m_node, i));
    clickBool();
    if (QTest::currentTestFailed())
        return;

    std::cout << "printed through the module" << std::endl;
    KnError::post("reported through the module");
    settle();
    const auto views = m_shell.window().findChildren<QTextEdit*>();
    QString text;
    for (const QTextEdit* view : views)
        text += view->toPlainText();
    QVERIFY2(text.contains(QLatin1String("printed through the module")), qPrintable(text));
    QVERIFY2(text.contains(QLatin1String("reported through the module")), qPrintable(text));
}

void ModuleRun::unload()
{
    CrvPluginsManager::getInstance()->unloadAll();
    settle();
}

bool ModuleRun::isMapped() const
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    if (!maps.open(QIODevice::ReadOnly))
        qFatal("the process map can't be read");
    return maps.readAll().contains(QFile::encodeName(m_fileName));
}

void ModuleRun::select(KnField* field)
{
    CrvServices::getInstance()->selectField(field);
    settle();
}

void ModuleRun::clickBool()
{
    KnSFBool& field = m_node->SFBool;
    select(&field);
    QCheckBox* const box = m_shell.window().findChild<QCheckBox*>(QStringLiteral("m_box"));
    QVERIFY(box);
    const bool before = field.getValue();
    box->click();
    settle();
    QCOMPARE(field.getValue(), !before);
    CrvServices::getInstance()->getUndoStack()->undo();
    settle();
    QCOMPARE(field.getValue(), before);
    QCOMPARE(box->isChecked(), before);
}

void settle()
{
    do {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    } while (!KnSensorQueue::getInstance().isEmpty());
}
