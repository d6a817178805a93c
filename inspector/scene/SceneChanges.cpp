// SPDX-License-Identifier: BSD-3-Clause
#include "SceneChanges.h"

#include "KnFieldContainer.h"
#include "KnMField.h"
#include "KnSFImage.h"
#include "KnSensorQueue.h"

#include <QUndoStack>

namespace {

// Comparing larger fields each time that a slider moves would be felt.
constexpr int maxComparedRows = 256;
constexpr int maxComparedBytes = 4096;

int rowCount(const KnField& field)
{
    const auto* array = dynamic_cast<const KnMField*>(&field);
    return array ? array->getNum() : 0;
}

bool isSmall(const KnField& field)
{
    if (const auto* image = dynamic_cast<const KnSFImage*>(&field)) {
        KbVec2s size;
        int components = 0;
        image->getValue(size, components);
        return qint64(size[0]) * size[1] * components <= maxComparedBytes;
    }
    return rowCount(field) <= maxComparedRows;
}

} // namespace

/// One field and what it held when it was saved.
class SceneChanges::Watch : private KnFieldSensor {
public:
    Watch(SceneChanges* owner, const KnFieldContainer* node, KnField* field)
        : KnFieldSensor(fieldChanged, this)
        , m_owner(owner)
        , m_node(node)
        , m_field(field)
    {
        markSaved();
        attach(field);
    }

    void markSaved()
    {
        m_comparable = isSmall(*m_field);
        if (m_comparable)
            m_field->get(m_savedText);
        else
            m_savedText.makeNull();
        m_savedRows = rowCount(*m_field);
        m_savedIgnored = m_field->isIgnored();
        m_rewritten = false;
        differs = false;
    }

    /// Whether the field, which was touched, differs from what was saved. `byCommand` if the touch
    /// may be a command's.
    bool compare(bool byCommand)
    {
        m_rewritten = m_rewritten || (!m_comparable && !byCommand);
        if (m_rewritten || m_field->isIgnored() != m_savedIgnored
            || rowCount(*m_field) != m_savedRows)
            return true;
        if (!m_comparable)
            return false;
        KbString text;
        m_field->get(text);
        return !(text == m_savedText);
    }

    bool differs = false;

private:
    static void fieldChanged(void* data, KnSensor*)
    {
        auto* const watch = static_cast<Watch*>(data);
        watch->m_owner->fieldTouched(*watch);
    }

    void fieldDestroyed() override { m_owner->forget(m_node); } // destroys this

    SceneChanges* m_owner;
    const KnFieldContainer* m_node; // has the field
    KnField* m_field;
    KbString m_savedText; // null if the field is too large
    int m_savedRows = 0;
    int m_savedIgnored = 0;
    bool m_comparable = true;
    bool m_rewritten = false; // too large, and written without a command
};

SceneChanges::SceneChanges(QUndoStack* stack, QObject* parent)
    : QObject(parent)
    , m_stack(stack)
    , m_batchEnd(endBatch, this)
    , m_forgotten(nodesForgotten, this)
{
    connect(m_stack, &QUndoStack::indexChanged, this, &SceneChanges::stackMoved);
    connect(m_stack, &QUndoStack::cleanChanged, this, &SceneChanges::update);
}

SceneChanges::~SceneChanges() = default;

void SceneChanges::watch(KnFieldContainer* node)
{
    if (!node || m_watches.contains(node))
        return;
    // A node without fields could die unnoticed, and has nothing to watch.
    const KnFieldData* const data = node->getContainerFieldData();
    for (int i = 0; i < data->getNum(); ++i)
        m_watches[node].push_back(std::make_unique<Watch>(this, node, data->getField(node, i)));
}

// The node's fields die one by one; the first of them takes all watches along, as the address may
// be that of a new node at any time from then on.
void SceneChanges::forget(const KnFieldContainer* node)
{
    const auto dead = m_watches.extract(node);
    for (const auto& watch : dead.mapped())
        m_differing -= int { watch->differs };
    // Nobody should hear of it in the middle of a destructor.
    KnSensorQueue::getInstance().schedule(&m_forgotten);
}

void SceneChanges::markSaved()
{
    for (const auto& [node, watches] : m_watches) {
        for (const auto& watch : watches)
            watch->markSaved();
    }
    m_differing = 0;
    m_stack->setClean();
    update();
}

void SceneChanges::forgetNodes()
{
    m_watches.clear();
    m_differing = 0;
    update();
}

// The command has touched its fields by now, so their sensors stand in the queue already.
void SceneChanges::stackMoved()
{
    m_commandInBatch = true;
    KnSensorQueue::getInstance().schedule(&m_batchEnd);
}

void SceneChanges::fieldTouched(Watch& watch)
{
    const bool differs = watch.compare(m_commandInBatch);
    m_differing += int { differs } - int { watch.differs };
    watch.differs = differs;
    update();
}

void SceneChanges::endBatch(void* data, KnSensor*)
{
    static_cast<SceneChanges*>(data)->m_commandInBatch = false;
}

void SceneChanges::nodesForgotten(void* data, KnSensor*)
{
    static_cast<SceneChanges*>(data)->update();
}

void SceneChanges::update()
{
    const bool modified = m_differing > 0 || !m_stack->isClean();
    if (modified == m_modified)
        return;
    m_modified = modified;
    Q_EMIT modifiedChanged(m_modified);
}
