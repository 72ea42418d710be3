// SPDX-License-Identifier: MIT
#pragma once

#include <QProgressDialog>

class ModelLoader;

/// Shows how far the loading of models has come, with a button that cancels it; appears only when
/// a file takes longer than half a second.
class ImportProgressDialog : public QProgressDialog
{
    Q_OBJECT

public:
    /// The loader is not owned and must outlive the dialog.
    ImportProgressDialog(ModelLoader& loader, QWidget* parent);
};
