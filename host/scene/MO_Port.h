// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <memory>
#include <vector>

class MO_Node;

/// Where values enter or leave a node. An output port feeds any number of input ports, an input
/// port is fed by one output port at most. The node owns its ports; a port that dies is unlinked.
class HOST_EXPORT MO_Port
{
public:
    enum Direction
    {
        eInput,
        eOutput
    };

    MO_Port(MO_Node* node, Direction direction);
    ~MO_Port();
    MO_Port(const MO_Port&) = delete;
    MO_Port& operator=(const MO_Port&) = delete;

    /// Never null.
    MO_Node* node() const;
    Direction direction() const;

    /// The output port that feeds this input port; null when none does.
    MO_Port* srcPort() const;
    /// The input ports that this output port feeds directly, in the order of linking.
    std::vector<MO_Port*> dstPorts() const;
    /// The input ports that receive the value in the end: nodes that only pass it on are looked
    /// through. Each as often as it is reached; links of nodes that are in no scene do not count.
    std::vector<MO_Port*> realDstPorts() const;

    /// Feeds the input port, or with null unlinks it; what fed it before no longer does. False,
    /// with nothing changed, when the directions do not fit or that is how it is.
    static bool link(MO_Port* output, MO_Port* input);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
