#pragma once

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <stdexcept>

#include "core/problem.h"
#include "tests/ui/window.h"

namespace numerello {

/// The text of a PDF file, line by line as it stands on the pages, empty lines left out. Blanks
/// within a line count as the tool sees them.
inline QStringList LinesOfPdf(const QString& path) {
    QProcess tool;
    tool.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path, QStringLiteral("-")});
    if (!tool.waitForFinished() || tool.exitCode() != 0) {
        throw std::runtime_error("pdftotext cannot read " + path.toStdString() + ": " +
                                 tool.readAllStandardError().toStdString());
    }
    QStringList lines;
    QString text = QString::fromUtf8(tool.readAllStandardOutput());
    for (const QString& line : text.replace(u'\f', u'\n').split(u'\n')) {
        if (!line.trimmed().isEmpty()) {
            lines.append(line.simplified());
        }
    }
    return lines;
}

inline int PagesOfPdf(const QString& path) {
    QProcess tool;
    tool.start(QStringLiteral("pdfinfo"), {path});
    tool.waitForFinished();
    for (const QString& line : QString::fromUtf8(tool.readAllStandardOutput()).split(u'\n')) {
        if (line.startsWith(QStringLiteral("Pages:"))) {
            return line.mid(6).trimmed().toInt();
        }
    }
    throw std::runtime_error("pdfinfo cannot read " + path.toStdString());
}

/// Names the file that a save dialog asks for.
inline WhenDialogOpens::Action SaveAs(const QString& path) {
    return [path](QWidget& dialog) {
        Find<QLineEdit>(dialog, QStringLiteral("fileNameEdit")).setText(path);
        PressKey(dialog, Qt::Key_Return);
    };
}

inline void CancelDialog(QWidget& dialog) {
    PressKey(dialog, Qt::Key_Escape);
}

/// x + 2 = 7, worked.
inline Problem WorkedEquation() {
    Problem problem;
    problem.topic.ProblemType = 101;
    problem.topic.TopicTitle = "Solving Equations";
    problem.log.Write("x+2=7", "Enter an equation.");
    problem.log.Write("x=7-2", "Move 2 to the other side.");
    problem.log.Write("x=5", "Subtract 2 from 7.");
    return problem;
}

}  // namespace numerello
