// SPDX-License-Identifier: MIT
#pragma once

#include "host/commands/CO_Command.h"

#include <memory>

class AT_ModelData;
class AT_ModelNodeKey;
class MO_Node;
struct AT_ModelNodeData;

namespace AT_ModelCmds {

/// Writes records into the subnode settings of an element. With no settings to write into it makes
/// new ones that hold from the first frame on.
class HOST_EXPORT insertNodeDataCmd : public CO_Command
{
public:
    /// The data must be the element's own, or null. A node that is not an element, or data of
    /// another element, gives a command that does nothing.
    insertNodeDataCmd(MO_Node* element, AT_ModelData* data);
    ~insertNodeDataCmd() override;

    /// A later record for the same key replaces the earlier one.
    void addData(const AT_ModelNodeKey& key, const AT_ModelNodeData& data);

    bool empty() const override;
    /// False, with nothing changed, when the command is empty or its element is gone.
    bool execute() override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace AT_ModelCmds
