// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

class CrvDefaults;
class CrvFieldEditors;
class KnField;

/// Says whether the editor on the screen shows what its field holds. An editor of the same type,
/// made for that, is given the field out of sight, and what the widgets of both show is compared.
class EditorOracle {
public:
    EditorOracle();
    ~EditorOracle();
    Q_DISABLE_COPY_MOVE(EditorOracle)

    /// Empty if both agree, or if nothing can be said now: no editor is shown, or a person is in
    /// the middle of typing. To be called when no sensor waits.
    QString check(QWidget* window);
    /// How often something could be said.
    int comparisons() const { return m_comparisons; }

private:
    struct Reference {
        CrvFieldEditors* editor; // owned by m_plugin
        bool isLoaded;
    };

    CrvFieldEditors* referenceFor(const QString& name);

    bool mayStandAnywhere(const KnField* field, const QWidget* frame);

    std::unique_ptr<QWidget> m_hidden; // holds the frames while they are compared
    std::unique_ptr<CrvDefaults> m_plugin;
    std::vector<Reference> m_references;
    const KnField* m_loose = nullptr; // shown by such a slider; only compared
    int m_comparisons = 0;
};
