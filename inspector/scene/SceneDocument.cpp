// SPDX-License-Identifier: BSD-3-Clause
#include "SceneDocument.h"

#include "CrvServices.h"
#include "CrvUndoSteps.h"
#include "KnSensorQueue.h"
#include "Messages.h"
#include "SceneReader.h"
#include "SceneWriter.h"

#include <QUndoStack>

SceneDocument::SceneDocument(QObject* parent)
    : QObject(parent)
    , m_changes(CrvServices::getInstance()->getUndoStack())
{
    connect(CrvServices::getInstance(), &CrvServices::selectedNodeChanged, &m_changes,
        &SceneChanges::watch);
    connect(&m_changes, &SceneChanges::modifiedChanged, this, &SceneDocument::modifiedChanged);
}

SceneDocument::~SceneDocument()
{
    release();
    CrvServices::getInstance()->setRoots({});
}

KnNodePtr SceneDocument::root() const
{
    const std::vector<KnNodePtr>& roots = CrvServices::getInstance()->getRoots();
    return roots.empty() ? KnNodePtr() : roots.front();
}

bool SceneDocument::isModified()
{
    CrvServices::getInstance()->getUndoSteps()->endGesture();
    KnSensorQueue::getInstance().process();
    return m_changes.isModified();
}

bool SceneDocument::open(const QString& fileName, QString* error)
{
    SceneReader reader;
    KnNodePtr root = reader.readFile(fileName);
    if (!root) {
        *error = reader.errorText();
        return false;
    }
    std::vector<KnNodePtr> roots = reader.takeFurtherRoots();
    roots.insert(roots.begin(), std::move(root));
    replace(std::move(roots), fileName);
    say(reader.nodeCount() == 1 ? tr("Opened %1: 1 node").arg(fileName)
                                : tr("Opened %1: %2 nodes").arg(fileName).arg(reader.nodeCount()));
    return true;
}

void SceneDocument::openStarter() { replace({ SceneReader().readStarter() }, QString()); }

bool SceneDocument::save(const QString& fileName, QString* error)
{
    CrvServices::getInstance()->getUndoSteps()->endGesture();
    const std::vector<KnNodePtr>& roots = CrvServices::getInstance()->getRoots();
    if (roots.empty()) {
        *error = tr("The scene has no nodes.");
        return false;
    }
    SceneWriter writer;
    if (!writer.writeFile(roots, fileName)) {
        *error = writer.errorText();
        return false;
    }
    // The file also holds the changes that the queue hasn't announced yet.
    KnSensorQueue::getInstance().process();
    m_changes.markSaved();
    say(tr("Saved %1").arg(fileName));
    if (m_fileName != fileName) {
        m_fileName = fileName;
        Q_EMIT fileNameChanged();
    }
    return true;
}

// Commands and selection hold plain pointers to fields of the scene, so they go first.
void SceneDocument::release()
{
    CrvServices* const services = CrvServices::getInstance();
    services->selectNode(nullptr);
    // In answer to that a listener may have selected something else of this scene.
    if (services->getSelectedNode())
        services->selectNode(nullptr);
    services->getUndoStack()->clear();
    m_changes.forgetNodes();
}

void SceneDocument::replace(std::vector<KnNodePtr> roots, const QString& fileName)
{
    release();
    m_fileName = fileName;
    CrvServices::getInstance()->setRoots(std::move(roots));
    Q_EMIT fileNameChanged();
}
