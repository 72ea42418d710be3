// SPDX-License-Identifier: MIT

#include "workbench/files/ImportProgressDialog.h"

#include "workbench/files/ModelLoader.h"

#include <QFileInfo>

namespace {

constexpr int patienceInMilliseconds = 500;
constexpr int steps = 1000;

} // namespace

ImportProgressDialog::ImportProgressDialog(ModelLoader& loader, QWidget* parent)
    : QProgressDialog(parent)
{
    setWindowTitle(tr("Opening Models"));
    setWindowModality(Qt::WindowModal);
    setMinimumDuration(patienceInMilliseconds);
    setAutoClose(false);
    setRange(0, steps);
    reset();

    connect(&loader, &ModelLoader::started, this, [this](const QString& path) {
        setLabelText(tr("Opening %1").arg(QFileInfo(path).fileName()));
        reset();
        setValue(0);
    });
    connect(&loader, &ModelLoader::progress, this, [this](double fraction) {
        if (!wasCanceled())
            setValue(static_cast<int>(fraction * (steps - 1)));
    });
    connect(&loader, &ModelLoader::finished, this, &QProgressDialog::reset);
    connect(this, &QProgressDialog::canceled, &loader, &ModelLoader::cancel);
}
