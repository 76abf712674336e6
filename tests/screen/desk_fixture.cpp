#include "screen/desk_fixture.h"

#include <QComboBox>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>
#include <utility>

#include "configuration/settings_store.h"
#include "desktop/box_view.h"
#include "platform/failure.h"
#include "platform/host/machine_paths.h"

namespace sonarelle::test {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 15s; // far more than a busy machine needs

/// Nothing of the test touches the files of who runs it, and no sound server is found.
void set_environment(const PrivateFolder& folder) {
    for (const auto& [name, value] : {std::pair{"XDG_CONFIG_HOME", "config"},
                                      {"XDG_DATA_HOME", "data"},
                                      {"XDG_CACHE_HOME", "cache"},
                                      {"XDG_RUNTIME_DIR", "run"},
                                      {"PULSE_RUNTIME_PATH", "run"}})
        ::setenv(name, folder.path(value).c_str(), 1);
    ::setenv("QT_QPA_PLATFORM", "xcb", 1);
    ::setenv("QT_ENABLE_HIGHDPI_SCALING", "0", 1);
    folder.put_folder("run");
    folder.set_rights("run", 0700);
}

void put_number(std::string& bytes, std::uint32_t number, int size) {
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

/// 8 kHz, one channel, 8 bit: a square wave of 100 Hz.
std::string wav_bytes(int seconds, int level) {
    constexpr std::uint32_t rate = 8000;
    const std::uint32_t count = rate * static_cast<std::uint32_t>(seconds);
    std::string bytes = "RIFF";
    put_number(bytes, 36 + count, 4);
    bytes += "WAVEfmt ";
    put_number(bytes, 16, 4);
    for (const auto& [number, size] : {std::pair{1U, 2}, {1U, 2}, {rate, 4}, {rate, 4}, {1U, 2}, {8U, 2}})
        put_number(bytes, number, size);
    bytes += "data";
    put_number(bytes, count, 4);
    for (std::uint32_t i = 0; i < count; ++i)
        bytes += static_cast<char>(i / 40 % 2 == 0 ? 128 + level : 128 - level);
    return bytes;
}

std::string failure_folder() {
    const std::string folder = std::filesystem::current_path().string() + "/screen-failures";
    std::filesystem::create_directories(folder);
    return folder;
}

} // namespace

DeskFixture::DeskFixture() {
    set_environment(folder_);
    application_ = std::make_unique<QApplication>(argument_count_, arguments_);
    QApplication::setQuitOnLastWindowClosed(false);
    speak_french(translator_);
    dress_application();
    machine_ = std::make_unique<Machine>(CommonOptions{});
}

DeskFixture::~DeskFixture() = default;

void DeskFixture::settings_of_a_second_start() {
    const SettingsStore store{machine_->settings(), machine_->program_folder(), DecimalMark::point};
    store.write_column(&SettingRow::first);
}

void DeskFixture::set(std::string_view section, std::string_view key, std::string_view value) {
    machine_->settings().SaveSetting(settings_application, section, key, value);
}

std::string DeskFixture::tone(const std::string& name, int seconds, int level) const {
    folder_.put(name, wav_bytes(seconds, level));
    return folder_.path(name);
}

std::string DeskFixture::list_of(int tracks, int seconds) {
    const char* tool = std::getenv("SONARELLE_OUTIL");
    const std::string list = folder_.path("air.dfm");
    std::string command = std::string{tool} + " liste ajouter '" + list + "'";
    for (int track = 1; track <= tracks; ++track)
        command += " '" + tone("piste" + std::to_string(track) + ".wav", seconds, 8 + 8 * track) + "'";
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error{command};
    return list;
}

void DeskFixture::operate(const std::string& file, const std::function<void()>& hands) {
    program_ = std::make_unique<DeskProgram>(*machine_, file);
    std::thread operator_thread{[&] {
        try {
            hands();
        } catch (const std::exception& fault) {
            ADD_FAILURE() << fault.what();
        }
        if (HasFailure())
            keep_picture_of_failure();
        if (!ended_)
            QMetaObject::invokeMethod(application_.get(), [] { QCoreApplication::exit(); });
    }};
    program_->run();
    ended_ = true;
    operator_thread.join();
    program_.reset();
}

void DeskFixture::on_window_thread(const std::function<void()>& work) {
    if (!ended_)
        QMetaObject::invokeMethod(application_.get(), work, Qt::BlockingQueuedConnection);
}

void DeskFixture::eventually(const std::string& what, const std::function<bool()>& so) {
    until(what, [&] {
        bool is_so = false;
        on_window_thread([&] { is_so = so(); });
        return is_so;
    });
}

void DeskFixture::until(const std::string& what, const std::function<bool()>& so) {
    const auto limit = std::chrono::steady_clock::now() + patience;
    while (std::chrono::steady_clock::now() < limit) {
        if (so())
            return;
        std::this_thread::sleep_for(20ms);
    }
    throw std::runtime_error{"it did not come: " + what};
}

void DeskFixture::key(const std::string& chord) {
    screen_.hand("key --clearmodifiers " + chord);
}

void DeskFixture::click_at(const std::function<QWidget*()>& find, const std::string& name, int button) {
    QPoint place;
    eventually(name + " on the screen", [&] {
        const QWidget* widget = find();
        if (widget == nullptr || !widget->isVisible() || !widget->isEnabled())
            return false;
        // A window that has just come may yet be moved by the desktop.
        const QPoint before = std::exchange(place, widget->mapToGlobal(widget->rect().center()));
        return place == before;
    });
    screen_.hand("mousemove " + std::to_string(place.x()) + " " + std::to_string(place.y()) + " click " +
                 std::to_string(button));
}

void DeskFixture::press(const std::string& window, const std::string& control, int button) {
    const auto find = [&]() -> QWidget* {
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->objectName() == QString::fromStdString(window))
                return top->findChild<QWidget*>(QString::fromStdString(control));
        return nullptr;
    };
    click_at(find, window + "." + control, button);
}

bool DeskFixture::is_on_screen(const Window& window) const {
    const QWidget* widget = program_->widget_of(window);
    return widget != nullptr && widget->isVisible() && !widget->isMinimized();
}

bool DeskFixture::is_active(const Window& window) const {
    return is_on_screen(window) && program_->widget_of(window)->isActiveWindow();
}

// The splash leaves while the main window comes, and for an instant the keyboard belongs to neither.
void DeskFixture::wait_for_the_keyboard() {
    eventually("the main window", [this] { return is_active(station().main_window); });
    const auto id = seen<WId>([this] { return widget_of(station().main_window)->winId(); });
    std::ostringstream alone_and_active;
    for (const char* property : {"_NET_CLIENT_LIST", "_NET_ACTIVE_WINDOW"})
        alone_and_active << property << "(WINDOW): window id # 0x" << std::hex << id << "\n";
    until("the keyboard",
          [&] { return screen_.asked("xprop -root _NET_CLIENT_LIST _NET_ACTIVE_WINDOW") == alone_and_active.str(); });
}

void DeskFixture::operators_event(const std::function<void()>& event) {
    on_window_thread([&] { program_->live().driver().run_event(event); });
}

void DeskFixture::load_decks() {
    wait_for_the_keyboard();
    const std::string list = station_form(list_of(3, 60));
    operators_event([&] {
        station().list_document.open_list(list);
        station().main_window.mix_titles.click();
        for (int row = 1; row <= 3; ++row) {
            station().list_window.rows.select(row);
            station().list_window.deck_loads()[static_cast<std::size_t>(row - 1)]->click();
        }
    });
}

std::string DeskFixture::station_form(const std::string& path) const {
    return station_path_of(machine_->drives(), path);
}

void DeskFixture::wait_for_box() {
    eventually("the box", [] {
        const QWidget* open = QApplication::activeModalWidget();
        return open != nullptr && open->isActiveWindow();
    });
}

std::string DeskFixture::box() {
    return seen<std::string>([]() -> std::string {
        const auto* open = dynamic_cast<BoxView*>(QApplication::activeModalWidget());
        return open == nullptr ? "" : open->text().toStdString();
    });
}

// By the keyboard, which the box has from its first moment on.
void DeskFixture::answer(const std::string& caption) {
    bool is_focused = false;
    const auto find = [&] {
        const auto* open = dynamic_cast<BoxView*>(QApplication::activeModalWidget());
        if (open == nullptr || !open->isActiveWindow())
            return false;
        for (auto* button : open->findChildren<QAbstractButton*>())
            if (button->text().remove('&').section(',', 0, 0) == QString::fromStdString(caption)) {
                is_focused = button->hasFocus();
                return true;
            }
        return false;
    };
    eventually("button " + caption, find);
    for (int stops = 0; !is_focused && stops < 4; ++stops) {
        key("Tab");
        eventually("button " + caption, find);
    }
    key("Return");
}

void DeskFixture::keep_picture_of_failure() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string{test->test_suite_name()} + "." + test->name() + ".png";
    std::ranges::replace(name, '/', '-'); // as in the names of tests with parameters
    screen_.picture(failure_folder() + "/" + name);
}

} // namespace sonarelle::test
