#include "desktop/file_drops.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include "desktop/message_box.h"
#include "desktop/qt_text.h"
#include "platform/failure.h"

namespace sonarelle {

namespace {

/// What of the dropped things is a file of this machine.
QStringList local_files(const QMimeData* data) {
    QStringList files;
    for (const QUrl& url : data->urls())
        if (url.isLocalFile())
            files += url.toLocalFile();
    return files;
}

} // namespace

void FileDrops::take_on(QWidget& widget) {
    widget.setAcceptDrops(true);
    widget.installEventFilter(this);
}

bool FileDrops::takes(const QMimeData* data) const {
    return control_.is_reachable() && !local_files(data).isEmpty();
}

bool FileDrops::eventFilter(QObject* object, QEvent* event) {
    const auto type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return QObject::eventFilter(object, event);
    auto* drop = static_cast<QDropEvent*>(event);
    if (!takes(drop->mimeData())) {
        drop->ignore();
        return true;
    }
    // The files stay where they are, so a move is refused.
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    // The other program waits for the end of the drop, which a box of the station mustn't put off.
    if (type == QEvent::Drop)
        QTimer::singleShot(0, this, [this, files = local_files(drop->mimeData())] { hand_over(files); });
    return true;
}

void FileDrops::hand_over(const QStringList& files) {
    std::vector<std::string> paths;
    try {
        for (const QString& file : files)
            paths.push_back(services_.paths.to_station(from_qt(file)));
    } catch (const Failure& failure) {
        tell(window_below_a_box(), from_qt(QApplication::applicationDisplayName()), failure.what(), Icon::warning);
        return;
    }
    services_.run_event([&] { control_.drop_files(paths); });
}

} // namespace sonarelle
