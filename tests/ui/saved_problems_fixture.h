#pragma once

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDragEnterEvent>
#include <QFile>
#include <QLineEdit>
#include <QMimeData>
#include <QStatusBar>
#include <QTest>
#include <QUrl>

#include "tests/ui/frm_main_fixture.h"

namespace numerello {

/// Problems saved to files and loaded from them in the window.
class SavedProblems : public Window {
  protected:
    QString Folder() const {
        return documents.filePath(QStringLiteral("Numerello/Saved Problems"));
    }
    QString File(const QString& name) const { return Folder() + u'/' + name; }

    QString Put(const QString& name, const QByteArray& content) {
        QFile file(File(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    QByteArray ContentOf(const QString& name) const {
        QFile file(File(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void EnterName(QWidget& dialog, const QString& name) {
        auto& edit = Find<QLineEdit>(dialog, QStringLiteral("fileNameEdit"));
        edit.setFocus();
        edit.selectAll();
        TypeText(dialog, name);
        PressKey(dialog, Qt::Key_Return);
    }

    void Save(const QString& name) {
        const WhenDialogOpens chooser(QStringLiteral("CommonDialog1"),
                                      [&](QWidget& dialog) { EnterName(dialog, name); });
        PressKey(frame, Qt::Key_S, Qt::ControlModifier);
        ShowActive(frame);
    }
    void Load(const QString& name) {
        const WhenDialogOpens chooser(QStringLiteral("CommonDialog1"),
                                      [&](QWidget& dialog) { EnterName(dialog, name); });
        PressKey(frame, Qt::Key_O, Qt::ControlModifier);
        ShowActive(frame);
    }
    void Drop(const QList<QUrl>& urls) {
        QMimeData data;
        data.setUrls(urls);
        const QPoint place(300, 300);
        QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QCoreApplication::sendEvent(&frame, &enter);
        taken = enter.isAccepted() && enter.dropAction() == Qt::CopyAction;
        if (taken) {
            QDropEvent drop(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(&frame, &drop);
            EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
        }
        QTest::qWait(10);
    }
    void Drop(const QString& path) { Drop({QUrl::fromLocalFile(path)}); }

    QStatusBar& Status() { return Find<QStatusBar>(frame, QStringLiteral("StatusLine")); }
    QLineEdit& Box(const char* name) { return Find<QLineEdit>(frame, QLatin1String(name)); }
    QComboBox& List(const char* name) { return Find<QComboBox>(frame, QLatin1String(name)); }

    bool taken = false;
};

inline constexpr const char* kArithmetic =
    "Arithmetic BB 4+3*2 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91\n";

}  // namespace numerello
