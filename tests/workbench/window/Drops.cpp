// SPDX-License-Identifier: MIT
#include "Drops.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>
#include <QWindow>

bool Drops::drop(QWidget& window, const QPoint& at, const QMimeData& data)
{
    QWindow* handle = window.windowHandle();
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(handle, &enter);
    // Users do not let go at the very pixel at which they came in, and platforms ask on the way.
    QDragMoveEvent move(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    if (enter.isAccepted()) {
        move.setDropAction(enter.dropAction());
        move.accept();
    }
    QCoreApplication::sendEvent(handle, &move);
    if (!move.isAccepted()) {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(handle, &leave);
        return false;
    }
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(handle, &drop);
    return drop.isAccepted();
}

bool Drops::dropFiles(QWidget& window, const QPoint& at, const QStringList& paths)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths)
        urls += QUrl::fromLocalFile(path);
    data.setUrls(urls);
    return drop(window, at, data);
}
