// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/batch/NodeListing.h"

class QTextStream;

/// Writes listings of models to a stream, in an order and a form that two of them can be compared
/// line by line. Text has a line for each node, indented by two spaces a level: its name, its type
/// in brackets, and then, for a key node, "key" and what it differs in from how it was modelled.
/// JSON has the same, an object a line.
class Dump
{
public:
    enum Format
    {
        Text,
        Json
    };

    /// The stream is not owned. The frame is what the listings are of.
    Dump(QTextStream& out, Format format, int frame);
    /// Ends the document.
    ~Dump();
    Dump(const Dump&) = delete;
    Dump& operator=(const Dump&) = delete;

    void writeModel(const QString& element, const std::vector<ListedNode>& nodes);

private:
    QTextStream& _out;
    Format _format;
    bool _isFirst = true;
};
