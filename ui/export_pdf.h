#pragma once

#include <QString>
#include <string>

/// A worked solution as a PDF file, without a window.
namespace numerello {

/// Where the command line asks for a file, the program needs no display, and gets along without
/// one. To be called before there is an application object.
void PrepareExport(int argc, char** argv);

/// Works the problem of a file and writes its lines with their reasons, and its graph, to `pdf`.
/// Tells why the problem cannot be used or worked or the file cannot be written, and then writes
/// none; empty when all is well.
std::string ExportProblem(const QString& problemFile, const QString& pdf);

/// The same for the command line: `arguments` are those beside the name of the PDF. The reason goes
/// to standard error. Gives the exit status: 0, 1 where there is a reason, 2 for arguments that are
/// not one problem file.
int ExportPdf(const QString& pdf, const QStringList& arguments);

}  // namespace numerello
