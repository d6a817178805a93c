// SPDX-License-Identifier: BSD-3-Clause
#include "InspectorFixture.h"

#include "CommandLine.h"
#include "CrvPluginsManager.h"
#include "KnField.h"
#include "SceneReader.h"
#include "SceneSearch.h"
#include "SceneText.h"

#include <QDockWidget>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QTreeView>

namespace {

QString textIn(KnFieldContainer* root, const QString& nodeAndField)
{
    SceneSearch search;
    if (!search.find(root, nodeAndField) || !search.field())
        qFatal("%s", qPrintable(search.errorText()));
    KbString text;
    search.field()->get(text);
    return toQString(text);
}

} // namespace

InspectorFixture::InspectorFixture(const QTemporaryDir& folder, const QString& profile)
    : m_folder(folder)
    , m_settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat)
    , window(&m_settings)
    , startup(window)
{
    CrvPluginsManager::getInstance()->useBuiltInProfiles();
    QFile::copy(QStringLiteral(CORVANE_SCENES "/all_fields.json"), sceneFile());
    CommandLine commandLine;
    commandLine.scene = sceneFile();
    commandLine.profile = profile.isEmpty() ? QStringLiteral("Everything") : profile;
    commandLine.plugins
        = QStringList { QStringLiteral(CORVANE_PLUGIN), QStringLiteral(CORVANE_EXAMPLE_PLUGIN) };
    if (!startup.carryOut(commandLine))
        qFatal("%s", qPrintable(startup.errorText()));
    window.restoreLayout();
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        qFatal("the window isn't active");
}

QString InspectorFixture::sceneFile() const
{
    return m_folder.filePath(QStringLiteral("scene.json"));
}

QString InspectorFixture::savedText(const QString& nodeAndField) const
{
    SceneReader reader;
    const NodePtr root = reader.readFile(sceneFile());
    if (!root)
        qFatal("%s", qPrintable(reader.errorText()));
    return textIn(root.get(), nodeAndField);
}

KnField* InspectorFixture::field(const QString& nodeAndField) const
{
    SceneSearch search;
    search.find(const_cast<MainWindow&>(window).document().root().get(), nodeAndField);
    return search.field();
}

QString InspectorFixture::text(const QString& nodeAndField) const
{
    return textIn(field(nodeAndField)->getContainer(), nodeAndField);
}

void InspectorFixture::clickNode(const QString& name)
{
    clickRow(QStringLiteral("sceneTree"), name);
}

void InspectorFixture::clickField(const QString& name)
{
    clickRow(QStringLiteral("fieldList"), name);
}

void InspectorFixture::clickRow(const QString& view, const QString& name)
{
    auto* const tree = window.findChild<QTreeView*>(view);
    const QModelIndexList found = tree->model()->match(tree->model()->index(0, 0), Qt::DisplayRole,
        name, 1, Qt::MatchExactly | Qt::MatchRecursive);
    if (found.isEmpty())
        qFatal("no row %s in %s", qPrintable(name), qPrintable(view));
    tree->scrollTo(found.constFirst());
    QTest::mouseClick(
        tree->viewport(), Qt::LeftButton, {}, tree->visualRect(found.constFirst()).center());
    QCoreApplication::processEvents();
}

QAction* InspectorFixture::action(const QString& menu, const QString& entry) const
{
    for (QAction* candidate : window.findChild<QMenu*>(menu)->actions()) {
        if (candidate->objectName() == entry)
            return candidate;
    }
    return nullptr;
}

void InspectorFixture::choose(const QString& menu, const QString& entry)
{
    auto* const popup = window.findChild<QMenu*>(menu);
    popup->popup(QPoint());
    QTest::mouseClick(
        popup, Qt::LeftButton, {}, popup->actionGeometry(action(menu, entry)).center());
    QCoreApplication::processEvents();
}

QDockWidget* InspectorFixture::dock(const QString& title) const
{
    for (QDockWidget* dock : window.findChildren<QDockWidget*>()) {
        if (dock->windowTitle() == title)
            return dock;
    }
    return nullptr;
}

void InspectorFixture::press(const QKeySequence& keys)
{
    QWidget* const focus = window.focusWidget();
    QTest::keySequence(focus ? focus : &window, keys);
    QCoreApplication::processEvents();
}

void InspectorFixture::answerNextQuestion(QMessageBox::StandardButton button)
{
    auto* const timer = new QTimer(&window);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, button] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        timer->deleteLater();
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    });
    timer->start(0);
}
