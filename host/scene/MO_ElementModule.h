// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/CEL_SharedPtr.h"
#include "host/scene/MO_Node.h"

class AT_ModelData;
class AT_ModelNodeKey;
class TD_CelVq3d;

/// A node that shows drawings; the element of a 3D model shows models. Each drawing is exposed
/// over a range of frames, and a frame without one shows nothing.
///
/// The key nodes of all its models have integer ids, which sub-selection speaks in. An id is given
/// when a model with that key is first exposed, counts up from 1, and stays for the element's life.
class HOST_EXPORT MO_ElementModule : public MO_Node
{
public:
    explicit MO_ElementModule(const QString& instanceName);
    ~MO_ElementModule() override;

    QString typeName() const override;
    void accept(MO_AbstractModuleVisitor& visitor) override;

    /// Whether the user may change the element; true unless it was locked.
    virtual bool isEditable() const;
    void setEditable(bool editable);

    /// Shows the model on the frames from the first to the last, both included, in place of what
    /// these frames showed. A null model clears them; an empty range changes nothing.
    void exposeModel(int firstFrame, int lastFrame, const CEL_SharedPtr<TD_CelVq3d>& model);
    /// The model at the frame; null when it shows none.
    CEL_SharedPtr<TD_CelVq3d> modelAt(double frame) const;
    /// A model, never null, on the frames from the first to the last, both included.
    struct Exposure
    {
        int firstFrame;
        int lastFrame;
        CEL_SharedPtr<TD_CelVq3d> model;

        friend bool operator==(const Exposure&, const Exposure&) = default;
    };
    /// What the element shows, by frame; no two overlap.
    std::vector<Exposure> exposures() const;

    /// False, with the result untouched, when no model of the element has this key or id.
    bool getSelIdForNodeKey(const AT_ModelNodeKey& key, int& id) const;
    bool getNodeKeyForSelId(int id, AT_ModelNodeKey& key) const;

    /// The settings of the model's subnodes that hold at the frame, set there or at the nearest
    /// frame before it; null when there are none. Owned by the element.
    AT_ModelData* seqMeta(double frame) const;
    /// The frame at which these settings were set; false when they are not this element's.
    bool frameOfSeqMeta(const AT_ModelData* data, int& frame) const;
    /// The frames at which settings were set, in order.
    std::vector<int> seqMetaFrames() const;
    /// Sets the settings from the frame on and returns what was set at that very frame.
    /// Null removes what was set at that frame.
    std::unique_ptr<AT_ModelData> setSeqMeta(int frame, std::unique_ptr<AT_ModelData> data);

private:
    struct Private;
    std::unique_ptr<Private> e;
};
