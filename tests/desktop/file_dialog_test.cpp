#include <QTemporaryDir>
#include <QTimer>

#include "desktop/box_view.h"
#include "desktop/desktop_dialogs.h"
#include "desktop/desktop_file_dialog.h"
#include "desktop/desktop_fixture.h"
#include "platform/failure.h"

namespace sonarelle {

namespace {

using FileDialogOnView = DesktopFixture;

PathForms same_paths() {
    const auto same = [](const std::string& path) { return path; };
    return {same, same};
}

/// Two folders of the station on this machine, and where a dialog that is told of a folder and a file begins.
class FileDialogBegins : public DesktopFixture {
protected:
    [[nodiscard]] QString at(const std::string& folder, const std::string& file) {
        const auto to_machine = [this](const std::string& path) {
            return (path.starts_with("C:\\Listes") ? lists : programme).path().toStdString();
        };
        const PathForms paths{to_machine, to_machine};
        DesktopFileDialog dialog{paths, nullptr};
        dialog.begin_at(folder, file);
        return dialog.directory().path();
    }

    QTemporaryDir programme;
    QTemporaryDir lists;
};

/// The dialog that the station opens over a folder of lists, and the operator's hand in it.
class FileThatIsChosen : public DesktopFixture {
protected:
    void in_dialog(std::function<void(DesktopFileDialog&)> act) {
        QTimer::singleShot(0, [this, act = std::move(act)] {
            auto* dialog = dynamic_cast<DesktopFileDialog*>(QApplication::activeModalWidget());
            came = dialog != nullptr;
            if (came)
                act(*dialog);
        });
    }
    void put(const char* name) {
        QFile file{lists.filePath(name)};
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    QTemporaryDir lists;
    DesktopDialogs dialogs{{[this](const std::string&) { return lists.path().toStdString(); },
                            [](const std::string& path) { return "C:\\Listes\\" + path.substr(path.rfind('/') + 1); }},
                           [](Window&) { return nullptr; }};
    FileDialog asked{.title = "Ouvrir une liste",
                     .folder = "C:\\Listes",
                     .file_name = "soir.dfm",
                     .filter = "fichier (*.dfm)|*.dfm|"};
    bool came = false;
};

} // namespace

TEST(FileFilters, HaveTheirPatternsSideBySide) {
    EXPECT_EQ(name_filters("fichier multimédia |*.mp3;*.wav|fichier (*.dfm)|*.dfm|"),
              (QStringList{"fichier multimédia (*.mp3 *.wav)", "fichier (*.dfm)"}));
    EXPECT_EQ(name_filters(""), QStringList{});
}

TEST_F(FileDialogBegins, InTheFolderThatItIsTold) {
    EXPECT_EQ(at("C:\\Listes", "*.dfm"), lists.path());
    EXPECT_EQ(at("C:\\Sonarelle", "*.dfm"), programme.path());
}

TEST_F(FileDialogBegins, InTheFolderOfTheFileThatIsOffered) {
    EXPECT_EQ(at("C:\\Sonarelle", "C:\\Listes\\matin.dfm"), lists.path());
}

TEST_F(FileDialogOnView, OffersTheNameOfTheFileToSave) {
    const QTemporaryDir folder;
    const PathForms paths = same_paths();
    DesktopFileDialog dialog{paths, nullptr};
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.begin_at(folder.path().toStdString(), "matin.dfm");
    EXPECT_EQ(dialog.selectedFiles(), QStringList{folder.filePath("matin.dfm")});
}

TEST_F(FileDialogOnView, FileThatTheStationCantHoldIsRefusedByNameAndTheDialogStays) {
    const QTemporaryDir folder;
    QFile file{folder.filePath("matin.dfm")};
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const auto refuse = [](const std::string& path) -> std::string {
        throw Failure{FailureNumber::wrong_file_name, path};
    };
    const PathForms paths{[](const std::string& path) { return path; }, refuse};
    DesktopFileDialog dialog{paths, nullptr};
    dialog.setDirectory(folder.path());
    dialog.selectFile(file.fileName());
    dialog.show();
    QString told;
    QTimer::singleShot(0, [&] {
        if (auto* box = dynamic_cast<BoxView*>(QApplication::activeModalWidget())) {
            told = box->text();
            box->accept();
        }
    });
    dialog.accept();
    EXPECT_TRUE(told.contains("matin.dfm")) << told.toStdString();
    EXPECT_TRUE(dialog.isVisible());
}

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
        if (auto* box = dynamic_cast<BoxView*>(QApplication::activeModalWidget())) {
            ++questions;
            box->reject();
        }
    });
    dialog.accept();
    settle();
    EXPECT_EQ(questions, 0);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(FileThatIsChosen, IsAskedForInTheStationsWords) {
    in_dialog([this](DesktopFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Ouvrir une liste");
        EXPECT_EQ(dialog.nameFilters(), QStringList{"fichier (*.dfm)"});
        EXPECT_EQ(dialog.directory().path(), lists.path());
        EXPECT_TRUE(dialog.testOption(QFileDialog::DontUseNativeDialog)); // which couldn't be kept open
        dialog.reject();
    });
    static_cast<void>(dialogs.open_file(asked));
    EXPECT_TRUE(came);
}

TEST_F(FileThatIsChosen, IsThereWhereItIsToBeOpened) {
    put("matin.dfm");
    in_dialog([this](DesktopFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        dialog.selectFile(lists.filePath("matin.dfm"));
        dialog.accept();
    });
    const ChosenFile chosen = dialogs.open_file(asked);
    EXPECT_TRUE(came);
    EXPECT_FALSE(chosen.cancelled);
    EXPECT_EQ(chosen.file_name, "C:\\Listes\\matin.dfm");
}

TEST_F(FileThatIsChosen, MayBeANewOneWhereItIsToBeSaved) {
    in_dialog([](DesktopFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialog.fileMode(), QFileDialog::AnyFile);
        dialog.accept(); // the name that is offered
    });
    const ChosenFile chosen = dialogs.save_file(asked);
    EXPECT_TRUE(came);
    EXPECT_FALSE(chosen.cancelled);
    EXPECT_EQ(chosen.file_name, "C:\\Listes\\soir.dfm");
}

TEST_F(FileThatIsChosen, IsTheOneThatWasOfferedAfterACancel) {
    in_dialog([](DesktopFileDialog& dialog) { dialog.reject(); });
    const ChosenFile chosen = dialogs.open_file(asked);
    EXPECT_TRUE(came);
    EXPECT_TRUE(chosen.cancelled);
    EXPECT_EQ(chosen.file_name, "soir.dfm");
}

} // namespace sonarelle
