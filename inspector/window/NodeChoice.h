// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class KnField;
class KnFieldContainer;

/// What is selected when a person has chosen a node, or nobody has chosen anything yet. A field is
/// selected as well, so that its editor is there at once and the panes stay where they are.
namespace NodeChoice {

/// Selects the node's field of the name of the field selected so far, or else its first one. An
/// editor that was closed stays so. Null selects nothing.
void choose(KnFieldContainer* node);
/// Selects the first field of the scene, if no node is selected.
void chooseFirst();
/// The field of that node which `choose` selects after `former`, which may be null. Null if the
/// node has no fields.
KnField* fieldLike(const KnField* former, KnFieldContainer* node);

} // namespace NodeChoice
