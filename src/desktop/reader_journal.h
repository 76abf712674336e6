#pragma once

#include <QTimer>
#include <string>

#include "desktop/reader_tail.h"
#include "desktop/reader_window.h"

class QPlainTextEdit;

namespace sonarelle {

/// The journal while it is written: its end comes on view line by line, unless the operator reads further up.
class JournalReader : public ReaderWindow {
public:
    /// `path` is absolute; the disk outlives the reader.
    JournalReader(Disk& disk, const std::string& path);
    ~JournalReader() override;
    JournalReader(const JournalReader&) = delete;
    JournalReader& operator=(const JournalReader&) = delete;

    /// Looks at the file once more than each second.
    void follow();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    JournalReader(Disk& disk, const std::string& path, QPlainTextEdit* text);
    [[nodiscard]] bool is_at_end() const;
    void add(const QString& lines);
    void tell_state();

    QPlainTextEdit* text_;
    FileTail tail_;
    QTimer second_;
    QString trouble_;
    bool is_cut_ = false;
    bool was_emptied_ = false;
};

} // namespace sonarelle
