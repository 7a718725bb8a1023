#pragma once

#include <QString>
#include <string>

/// A worked solution as a PDF file, without a window.
namespace numerello {

/// Whether the command line asks for a file; then the program needs no display, and gets along
/// without one. To be called before there is an application object.
bool ReadyToExport(int argc, char** argv);

/// Works the problem of a file and writes its lines with their reasons, and its graph, to `pdf`.
/// Gives the exit status: 0, or 1 when the problem cannot be used or worked or the file cannot be
/// written. The reason stands in `message`, empty when all is well; nothing is written then.
int ExportPdf(const QString& pdf, const QString& problemFile, std::string& message);

/// The same for the command line: `arguments` are those beside the name of the PDF. The reason goes
/// to standard error; 2 stands for arguments that are not one problem file.
int ExportPdf(const QString& pdf, const QStringList& arguments);

}  // namespace numerello
