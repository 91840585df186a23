// SPDX-License-Identifier: Apache-2.0
// What --json writes: one object, whose names the manual page documents and which are kept.
//
//   status, kind          the exit status, and its name ("done", "bad-document", ...)
//   message               with a status other than 0: what is wrong and what to do
//   warnings              sentences
//   printer               queue, instance, ppd, output: those that there are
//   options               what the job carries, by name; numbers are numbers
//   summary               of each panel: panel, lines (title, value)
//   presets               with --list-presets, of each: name, default, own, options
//   job                   queue, id, state; or output, bytes
//   help, version         with --help, its text; with --version, the number
#pragma once

#include "dialog/Panels.h"
#include "job/Destination.h"
#include "job/JobOptions.h"
#include "job/Printing.h"
#include "tapeprint/RunReport.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>

namespace tapeprint
{

QJsonObject jsonPrinter(const job::Destination &destination);
QJsonObject jsonOptions(const job::JobOptions &options);
QJsonArray jsonSummary(const dialog::Panels &panels);
QJsonObject jsonJob(const job::PrintedJob &printed);

/// A report as indented JSON with a line's end behind it.
QByteArray jsonText(const RunReport &run);

} // namespace tapeprint
