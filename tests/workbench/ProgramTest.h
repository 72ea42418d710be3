// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

/// Runs the program as a shell would, in a folder of its own, with the models to run it on.
class ProgramTest : public QObject
{
protected:
    struct Run
    {
        int code = -1;
        QByteArray out;
        QByteArray error;
    };

    void openFolder()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _folder = std::make_unique<QTemporaryDir>();
        QVERIFY(_folder->isValid());
    }
    QString path(const QString& name) const { return _folder->filePath(name); }
    Run run(const QStringList& arguments) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        // Every run starts with settings of its own, and finds out by itself that there is no
        // display.
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path(QStringLiteral("config")));
        environment.remove(QStringLiteral("DISPLAY"));
        environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
        environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(_folder->path());
        process.start(QStringLiteral(PROGRAM), arguments);
        constexpr int patience = 120000;
        if (!process.waitForFinished(patience))
            return {};
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput(), process.readAllStandardError()};
    }

    QImage picture(const QStringList& arguments) const
    {
        const QString file = path(QStringLiteral("picture.png"));
        QFile::remove(file);
        const Run done = run(arguments + QStringList{"--screenshot", file});
        return done.code == 0 && done.error.isEmpty() ? QImage(file) : QImage();
    }

    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    const QString _robot = QStringLiteral(MODELS "/robot.gltf");
    const QString _crane = QStringLiteral(MODELS "/crane.gltf");
    std::unique_ptr<QTemporaryDir> _folder;
};
