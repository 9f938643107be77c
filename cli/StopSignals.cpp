#include "StopSignals.h"

#include "ExitCode.h"
#include "StitchPipeline.h"

#include <atomic>
#include <cstring>

#include <signal.h>
#include <unistd.h>

namespace {

std::atomic<int> s_received { 0 };
std::atomic<StitchPipeline*> s_pipeline { nullptr };
std::atomic<const char*> s_exitMessage { nullptr };

static_assert(std::atomic<int>::is_always_lock_free, "the signal must be stored lock-free");
static_assert(std::atomic<StitchPipeline*>::is_always_lock_free, "pointers must be lock-free");

/// StopSignals objects alive; the outermost installs and restores.
int s_depth = 0;
struct sigaction s_previousInt = {};
struct sigaction s_previousTerm = {};

extern "C" void onStopSignal(int signal)
{
    int expected = 0;
    s_received.compare_exchange_strong(expected, signal);
    if (const char* message = s_exitMessage.load()) {
        const ssize_t written = ::write(STDERR_FILENO, message, std::strlen(message));
        static_cast<void>(written);
        ::_exit(ExitCode::Interrupted + signal);
    }
    if (StitchPipeline* pipeline = s_pipeline.load())
        pipeline->cancel();
}

} // namespace

StopSignals::StopSignals()
{
    if (s_depth++ > 0)
        return;
    s_received.store(0);
    s_pipeline.store(nullptr);
    s_exitMessage.store(nullptr);
    struct sigaction action = {};
    action.sa_handler = onStopSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGINT, &action, &s_previousInt);
    sigaction(SIGTERM, &action, &s_previousTerm);
}

StopSignals::~StopSignals()
{
    if (--s_depth > 0)
        return;
    sigaction(SIGINT, &s_previousInt, nullptr);
    sigaction(SIGTERM, &s_previousTerm, nullptr);
    s_pipeline.store(nullptr);
    s_exitMessage.store(nullptr);
}

void StopSignals::setPipeline(StitchPipeline* pipeline)
{
    s_pipeline.store(pipeline);
    // A signal that came before the pipeline existed stops it too.
    if (pipeline && s_received.load() != 0)
        pipeline->cancel();
}

void StopSignals::setExitAtOnce(const char* message)
{
    s_exitMessage.store(message);
    if (const int signal = s_received.load()) {
        const ssize_t written = ::write(STDERR_FILENO, message, std::strlen(message));
        static_cast<void>(written);
        ::_exit(ExitCode::Interrupted + signal);
    }
}

void StopSignals::clearExitAtOnce()
{
    s_exitMessage.store(nullptr);
}

int StopSignals::received()
{
    return s_received.load();
}

int StopSignals::exitCode()
{
    return ExitCode::Interrupted + s_received.load();
}
