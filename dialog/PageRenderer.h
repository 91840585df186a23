// SPDX-License-Identifier: Apache-2.0
// The picture of a document's first page, made by pdftoppm beside the dialog.
#pragma once

#include <QImage>
#include <QObject>
#include <QProcess>
#include <QTimer>

namespace tapeprint::dialog
{

/// Renders one document at a time. No program that it started lives longer than this object.
class PageRenderer : public QObject
{
    Q_OBJECT

public:
    explicit PageRenderer(QObject *parent = nullptr);
    ~PageRenderer() override;

    /// Starts rendering; an earlier document is given up.
    void start(const QString &document);
    bool isRunning() const { return mProgram.state() != QProcess::NotRunning; }

Q_SIGNALS:
    /// Once a start, when it is clear what becomes of it. \param page null when the document cannot be rendered.
    void rendered(const QImage &page);

private:
    void stop();
    void finish(bool isWhole);

    QProcess mProgram;
    QTimer mTimeLimit;
};

} // namespace tapeprint::dialog
