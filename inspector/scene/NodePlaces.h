// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "NodeAddress.h"

#include <QString>

#include <unordered_map>
#include <vector>

class KnFieldContainer;

/// The nodes of a graph in the order of the tree, each once, and the addresses that name them. It
/// holds no references, and the graph must stay as it is meanwhile.
class NodePlaces {
public:
    using Nodes = std::vector<KnFieldContainer*>;

    /// What an address leads to. The rest says why, if there are no nodes.
    struct Result {
        Nodes nodes; ///< several if the address is ambiguous, in the order of the tree
        std::size_t failedStep = 0; ///< that leads nowhere
        Nodes considered; ///< what that step had to choose from
        std::size_t labelled = 0; ///< how many of these go by its label; its index is too large
    };

    /// Roots that aren't null, in order.
    explicit NodePlaces(const Nodes& roots);

    const Nodes& nodes() const { return m_nodes; }
    /// The address of a node of the graph, from its root on, with indices only where siblings go by
    /// the same label. `find` takes it back. A node in several places goes by the first of them.
    QString path(const KnFieldContainer* node) const;
    /// A label is the name of a node or, for a node without one, its type. If no node goes by it,
    /// it is the type of nodes with a name; if there is none either, both are tried again in upper
    /// or lower case. A path from a root, its label in full, comes before all others.
    Result find(const NodeAddress& address) const;

private:
    struct Place {
        const KnFieldContainer* parent; // null for a root
        int index; // among siblings with the same label; -1 for the only one
    };

    Result follow(const NodeAddress& address, Nodes candidates) const;

    Nodes m_roots;
    Nodes m_nodes;
    std::unordered_map<const KnFieldContainer*, Place> m_places;
};
