#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include "desktop/desktop_bench.h"
#include "desktop/desktop_file_dialog.h"

namespace sonarelle {

namespace {

using FileDialogOnView = DesktopBench;

PathForms same_paths() {
    const auto same = [](const std::string& path) { return path; };
    return {same, same};
}

} // namespace

TEST_F(FileDialogOnView, LeavesTheQuestionBeforeAFileIsWrittenOverToTheStation) {
    const QTemporaryDir folder;
    QFile file{folder.filePath("copie.dfm")};
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const PathForms paths = same_paths();
    DesktopFileDialog dialog{paths, nullptr};
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDirectory(folder.path());
    dialog.selectFile(file.fileName());
    dialog.show();
    int questions = 0;
    QTimer::singleShot(0, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ++questions;
            box->reject();
        }
    });
    dialog.accept();
    settle();
    EXPECT_EQ(questions, 0);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

} // namespace sonarelle
