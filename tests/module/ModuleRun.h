// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnTestNode.h"
#include "TestShell.h"

#include <memory>

class CrvPlugin;

/// A shell whose window outlives the plug-in's file.
class ModuleShell : public TestShell {
public:
    void addDockWidget(QDockWidget* dock, int area) override;
};

/// A host that knows a plug-in only by its file: a window, a node with a field of every type, and
/// the plug-in manager.
class ModuleRun {
public:
    /// `fileName` is what the plug-in manager loads.
    explicit ModuleRun(const QString& fileName);
    ~ModuleRun();

    /// Loads the file under the profile "Everything"; null if it was refused.
    CrvPlugin* load();
    /// Uses the plug-in as a person would: shows every field of the node (only a handful if
    /// `everyField` is false), clicks the check box of the bool field, undoes, prints to the
    /// console and reports an error. Fails the running test where that has no effect.
    void use(bool everyField);
    void unload();

    ModuleShell& shell() { return m_shell; }
    /// Whether the process map names the file.
    bool isMapped() const;

private:
    void select(KnField* field);
    void clickBool();

    QString m_fileName;
    ModuleShell m_shell;
    KnTestNode* m_node; // a reference is held
};

/// Runs the posted events and the kernel's sensors until none is left.
void settle();
