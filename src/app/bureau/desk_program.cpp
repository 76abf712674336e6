#include "app/bureau/desk_program.h"

#include <QApplication>
#include <QScreen>
#include <random>
#include <utility>

#include "app/bureau/signal_watch.h"
#include "platform/calendar_text.h"
#include "platform/dialogs.h"
#include "platform/failure.h"
#include "platform/host/machine_paths.h"
#include "platform/host/output_choice.h"
#include "platform/host/program_files.h"
#include "platform/paths.h"

namespace sonarelle {

namespace {

constexpr int twips_of_pixel = 15;

ScreenArea area_of(const QRect& pixels) {
    const auto twips = [](int length) { return Twips{length * twips_of_pixel}; };
    return {twips(pixels.left()), twips(pixels.top()), twips(pixels.width()), twips(pixels.height())};
}

/// A picture that can't be put in its place is missed where it is shown, by name.
std::string filled_program_folder(Machine& machine) {
    std::string folder = machine.program_folder();
    if (const auto supplied = supplied_files())
        ErrorIndicator{}.skip([&] { fill_program_folder(*supplied, machine.folders().program); });
    return folder;
}

QString guide_file() {
    const auto supplied = supplied_files();
    return supplied ? QString::fromStdString(*supplied + "/guide/guide.md") : QString{};
}

/// The form in which the station gets its command line.
std::string quoted(const std::string& path) {
    return path.empty() ? path : '"' + path + '"';
}

} // namespace

DeskProgram::DeskProgram(Machine& machine, const std::string& file)
    : machine_{machine},
      told_{machine.make_ready(Machine::EmptyStore::is_first_start)},
      command_line_{quoted(file.empty() ? file : station_path_of(machine.drives(), absolute_machine_path(file)))},
      program_folder_{filled_program_folder(machine)},
      live_{machine.drives(), std::random_device{}()},
      dialogs_{path_forms(), [this](Window& window) { return desktop_.widget_of(window); },
               [this] { return desktop_.name_on_air(); }},
      shell_{live_.shell(), live_.disk(), guide_file()},
      station_{platform()},
      pictures_{[this](const std::string& name) { return picture_path(name); }},
      services_{[this](const std::function<void()>& event) { run_event(event); }, updates_, pictures_, path_forms(),
                [this](const std::string& path) { return waveforms_.of(path); }},
      desktop_{station_.windows(), station_.desk, services_, probe_.reading()},
      pulse_{live_.driver().wake_descriptor(), [this] {
                 std::chrono::nanoseconds rest{};
                 guard([&] { rest = live_.driver().poll(); });
                 return rest;
             }} {
    QApplication::setWindowIcon(QIcon{pictures_.path("sonarelle.png")});
    live_.driver().sleep = [this](std::chrono::nanoseconds time) { pulse_.serve(time); };
    connect();
}

DeskProgram::~DeskProgram() = default;

Platform DeskProgram::platform() {
    Platform platform = live_.platform(machine_.settings(), dialogs_, shell_, program_folder_);
    platform.screen = [this] {
        return area_of(desktop_.widget_of(station_.main_window)->screen()->availableGeometry());
    };
    return platform;
}

PathForms DeskProgram::path_forms() {
    return {[this](const std::string& path) { return live_.disk().machine_path(path); },
            [this](const std::string& path) { return station_path_of(machine_.drives(), path); }};
}

std::string DeskProgram::picture_path(const std::string& name) {
    std::string path;
    // The station's current folder is that of its music.
    const bool is_bare = name_of_path(name) == name;
    ErrorIndicator{}.skip([&] { path = live_.disk().machine_path(is_bare ? join_path(program_folder_, name) : name); });
    return path;
}

void DeskProgram::run_event(const std::function<void()>& event) {
    if (station_.ended())
        return;
    guard([&] { live_.driver().run_event(event); });
    if (!station_.ended())
        pulse_.beat();
}

void DeskProgram::guard(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception& fault) {
        tell_fault(fault.what());
    }
}

// Time goes on behind the box, and a tick that fails at every second must not heap up boxes.
void DeskProgram::tell_fault(const std::string& sentence) {
    note(sentence);
    if (std::exchange(tells_fault_, true))
        return;
    dialogs_.MsgBox({sentence, std::string{application_title}, Buttons::ok, Icon::stop});
    tells_fault_ = false;
}

// The journal is closed, or gone, when the station has ended.
void DeskProgram::note(const std::string& what) {
    if (!station_.ended())
        station_.journal.note(date_and_time(station_.desk.platform) + " " + what);
}

void DeskProgram::connect() {
    station_.on_end = [] { QCoreApplication::exit(); }; // quit() would ask the windows, which refuse
    desktop_.offer_outputs({[this] { return live_.output()->device_names(); },
                            [this] { return live_.output()->chosen(); },
                            [this](const std::string& name) { choose_output(name); }});
    desktop_.mark_missing({[this](const std::string& path) { return presence_.is_missing(path); },
                           [this] { return presence_.has_news(); }});
    live_.media().on_trouble = [this](const SoundReport& report) { note(trouble_text(report)); };
}

void DeskProgram::run() {
    const SignalWatch watch{[this] { run_event([this] { station_.desk_wiring.shutdown.quit_confirmed(); }); }};
    live_.open_output(
        load_output_choice(machine_.folders().output_choice), [this](OutputState state) { tell_output(state); },
        [this](OutputGaps gaps) { tell_gaps(gaps); });
    // Ending ends a loop that turns already, so the station begins inside it.
    QTimer::singleShot(0, [this] { run_event([this] { station_.desk_wiring.startup.enter_program(command_line_); }); });
    for (const std::string& sentence : told_)
        QTimer::singleShot(0, [this, sentence] { run_event([this, sentence] { tell_fault(sentence); }); });
    QApplication::exec();
}

void DeskProgram::tell_output(OutputState state) {
    note(state_text(state));
    desktop_.show_output(state_text(state), state != OutputState::playing);
}

void DeskProgram::tell_gaps(OutputGaps gaps) {
    note(gaps_text(gaps));
    desktop_.show_output(gaps_text(gaps), false);
}

void DeskProgram::choose_output(const std::string& name) {
    live_.output()->choose(name);
    guard([&] { save_output_choice(machine_.folders().output_choice, name); });
}

} // namespace sonarelle
