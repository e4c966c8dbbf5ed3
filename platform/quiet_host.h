// A host that shows nothing, plays nothing and lets no event in: for missions that nobody watches.
#pragma once

#include "platform/host.h"

/// Thrown where the process would end.
struct ProcessEnded {
    int exitCode;
};

class QuietHost : public Host {
  public:
    /// Installs itself for as long as it lives.
    QuietHost() { InstallHost(this); }
    ~QuietHost() override { InstallHost(nullptr); }

    void Refresh(Control& /*control*/) override {}
    void PumpEvents() override {}
    void Wait(std::chrono::nanoseconds /*time*/, bool /*pump*/) override {}
    void ShowModal(Form& /*form*/) override {}
    void ShowMessage(const std::string& /*text*/) override {}
    [[noreturn]] void EndProcess(int exitCode) override { throw ProcessEnded{exitCode}; }

  protected:
    void Emit(const SoundRequest& /*sound*/) override {}
};
