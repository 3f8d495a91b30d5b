// libcanberra playback. The context is opened on first use and again after a failure, so a sound
// server that starts after Larkspan (at login) is picked up by the next sound.
#include "Platform/Linux/CanberraSoundPlayer.h"

#include <canberra.h>

#include <array>
#include <iostream>
#include <utility>

namespace larkspan {

namespace {

// The timer's sounds and the theme events that carry the same meaning.
constexpr std::array<std::pair<std::string_view, std::string_view>, 5> kEvents = {{
    {"Tink", "message"},              // a session starts or resumes
    {"Pop", "audio-volume-change"},   // paused
    {"Funk", "dialog-warning"},       // stopped or skipped
    {"Glass", "complete"},            // a focus session is done
    {"Ping", "alarm-clock-elapsed"},  // a break is over
}};

}  // namespace

CanberraSoundPlayer::CanberraSoundPlayer(std::string driver)
    : CanberraSoundPlayer(std::move(driver), std::cerr) {}

CanberraSoundPlayer::CanberraSoundPlayer(std::string driver, std::ostream& diagnostics)
    : driver_(std::move(driver)), diagnostics_(diagnostics) {}

CanberraSoundPlayer::~CanberraSoundPlayer() {
    if (context_)
        ca_context_destroy(context_);
}

std::optional<std::string_view> CanberraSoundPlayer::eventID(std::string_view name) {
    for (const auto& [sound, event] : kEvents) {
        if (sound == name)
            return event;
    }
    return std::nullopt;
}

bool CanberraSoundPlayer::ensureOpen() {
    if (context_)
        return true;
    ca_context* context = nullptr;
    int error = ca_context_create(&context);
    if (error == CA_SUCCESS && !driver_.empty())
        error = ca_context_set_driver(context, driver_.c_str());
    if (error == CA_SUCCESS) {
        error = ca_context_change_props(context, CA_PROP_APPLICATION_NAME, "Larkspan", CA_PROP_APPLICATION_ID,
                                        "com.larkspan", nullptr);
    }
    if (error == CA_SUCCESS)
        error = ca_context_open(context);
    if (error != CA_SUCCESS) {
        if (context)
            ca_context_destroy(context);
        reportOnce(error);
        return false;
    }
    context_ = context;
    return true;
}

void CanberraSoundPlayer::reportOnce(int error) {
    if (reported_)
        return;
    reported_ = true;
    diagnostics_ << "Larkspan: no sound server, timer sounds are off (" << ca_strerror(error) << ")"
                 << std::endl;
}

void CanberraSoundPlayer::play(const std::string& name) {
    const auto event = eventID(name);
    if (!event)
        return;
    std::lock_guard lock(mutex_);
    if (!ensureOpen())
        return;
    const std::string eventID(*event);
    const int error = ca_context_play(context_, 0, CA_PROP_EVENT_ID, eventID.c_str(),
                                      CA_PROP_EVENT_DESCRIPTION, name.c_str(), nullptr);
    // A theme without this sound, or sounds switched off by the user, is no fault of the server.
    if (error == CA_SUCCESS || error == CA_ERROR_NOTFOUND || error == CA_ERROR_DISABLED)
        return;
    reportOnce(error);
    ca_context_destroy(context_);
    context_ = nullptr;
}

}  // namespace larkspan
