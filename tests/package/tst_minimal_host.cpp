// SPDX-License-Identifier: MIT

#include <QHash>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>

namespace {

/// How much of the area is not of the colour that most of it has.
double inked(const QImage& picture, const QRect& area)
{
    QHash<QRgb, int> pixels;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            ++pixels[picture.pixel(x, y)];
    }
    const int most = *std::max_element(pixels.cbegin(), pixels.cend());
    return 1.0 - double(most) / (double(area.width()) * area.height());
}

} // namespace

/// The smallest host, built against the installed package.
class MinimalHostTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void the_window_shows_the_model_in_both_views()
    {
        const QString path = _folder.filePath(QStringLiteral("window.png"));
        QCOMPARE(run({QStringLiteral("--screenshot"), path}), 0);
        const QImage picture(path);
        QCOMPARE(picture.size(), QSize(900, 500));
        // Names in a list on the left; boxes and lines on the right.
        QVERIFY(inked(picture, QRect(0, 40, 240, 300)) > 0.02);
        QVERIFY(inked(picture, QRect(280, 40, 600, 300)) > 0.05);
    }

    void a_picture_that_cannot_be_written_is_an_error()
    {
        QCOMPARE(
            run({QStringLiteral("--screenshot"), _folder.filePath(QStringLiteral("no/x.png"))}), 1);
    }

private:
    /// The exit code; a number that no program gives when it said something or crashed.
    static int run(const QStringList& arguments)
    {
        QProcess process;
        process.start(QStringLiteral(PROGRAM), arguments);
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
            return -1;
        // Qt remarks on what the platform off screen, or the machine, does not have.
        static const QRegularExpression remark(
            QStringLiteral("^(This plugin does not support|QStandardPaths:) .*\n"),
            QRegularExpression::MultilineOption);
        const QString said = QString::fromLocal8Bit(process.readAllStandardError()).remove(remark);
        if (!said.isEmpty())
            qInfo("%s", qUtf8Printable(said));
        return said.isEmpty() ? process.exitCode() : -1;
    }

    QTemporaryDir _folder;
};

QTEST_GUILESS_MAIN(MinimalHostTest)

#include "tst_minimal_host.moc"
