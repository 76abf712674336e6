#include "platform/audio/sdl_devices.h"

#include <SDL2/SDL.h>
#include <cstdlib>
#include <dlfcn.h>

#include "platform/failure.h"
#include "platform/units.h"

namespace sonarelle {

namespace {

constexpr Uint16 block_frames = 2048;

void say_nothing(const char*, int, const char*, int, const char*, ...) {}

// On a machine without a card ALSA tells its own search on standard error, where the station says it in one sentence.
// SDL brings the library or doesn't; nothing here is linked to it.
void silence_alsa() {
    using Handler = void (*)(const char*, int, const char*, int, const char*, ...);
    void* library = ::dlopen("libasound.so.2", RTLD_LAZY); // kept for good: SDL holds it too
    void* symbol = library == nullptr ? nullptr : ::dlsym(library, "snd_lib_error_set_handler");
    if (symbol != nullptr)
        reinterpret_cast<int (*)(Handler)>(symbol)(say_nothing);
}

class SdlDevice final : public OutputDevice {
public:
    SdlDevice(const std::string& name, PullFrames pull, std::shared_ptr<int> open_devices)
        : pull_{std::move(pull)},
          open_devices_{std::move(open_devices)} {
        SDL_AudioSpec wanted{};
        wanted.freq = static_cast<int>(frame_rate);
        wanted.format = AUDIO_F32SYS;
        wanted.channels = 2;
        wanted.samples = block_frames;
        wanted.callback = &SdlDevice::fill;
        wanted.userdata = this;
        device_ = SDL_OpenAudioDevice(name.empty() ? nullptr : name.c_str(), 0, &wanted, nullptr, 0);
        if (device_ == 0)
            throw Failure{FailureNumber::device_unavailable, name};
        ++*open_devices_;
        SDL_PauseAudioDevice(device_, 0);
    }
    ~SdlDevice() override {
        SDL_CloseAudioDevice(device_);
        --*open_devices_;
    }
    SdlDevice(const SdlDevice&) = delete;
    SdlDevice& operator=(const SdlDevice&) = delete;

    [[nodiscard]] bool is_there() const override { return SDL_GetAudioDeviceStatus(device_) != SDL_AUDIO_STOPPED; }

private:
    static void fill(void* self, Uint8* bytes, int count) {
        static_cast<SdlDevice*>(self)->pull_(reinterpret_cast<float*>(bytes),
                                             static_cast<std::size_t>(count) / (2 * sizeof(float)));
    }

    PullFrames pull_;
    std::shared_ptr<int> open_devices_;
    SDL_AudioDeviceID device_ = 0;
};

} // namespace

// SDL asks for one block. PulseAudio's library, which PipeWire answers too, takes the length from here.
void SdlDevices::ask_for_large_buffers() {
    ::setenv("PULSE_LATENCY_MSEC", "150", 0);
}

SdlDevices::~SdlDevices() {
    if (connected_)
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

// A server that was restarted is found by beginning anew, which closes all that is open.
bool SdlDevices::connect(bool anew) {
    if (connected_ && anew)
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    if (!connected_ || anew) {
        silence_alsa();
        SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Sonarelle");
        SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
        connected_ = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
    }
    return connected_;
}

std::vector<std::string> SdlDevices::names() {
    std::vector<std::string> names;
    if (!connect(false))
        return names;
    const int count = SDL_GetNumAudioDevices(0);
    for (int device = 0; device < count; ++device)
        if (const char* name = SDL_GetAudioDeviceName(device, 0))
            names.emplace_back(name);
    return names;
}

std::unique_ptr<OutputDevice> SdlDevices::open(const std::string& name, PullFrames pull) {
    if (!connect(*open_devices_ == 0))
        throw Failure{FailureNumber::device_unavailable, name};
    return std::make_unique<SdlDevice>(name, std::move(pull), open_devices_);
}

} // namespace sonarelle
