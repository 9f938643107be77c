// ExitCode: what the panohead program's exit code says, the same for every
// command: scripts tell a bad shoot from a broken installation and from a stop.
#pragma once

namespace ExitCode {

/// The work is done.
constexpr int Done = 0;
/// An input is wrong or missing: a record, a photograph, a project, an
/// output that exists or cannot be written.
constexpr int InputError = 1;
/// The command line is wrong.
constexpr int UsageError = 2;
/// One of Hugin's tools is missing, failed or did not finish in time.
constexpr int ToolFailure = 3;
/// Stopped by a signal: 128 + the signal's number (130 for SIGINT, 143 for SIGTERM).
constexpr int Interrupted = 128;

/// The exit-code table as every command's --help shows it.
inline const char* Table()
{
    return "Exit code: 0 done, 1 an input is wrong (record, photographs, project,\n"
           "outputs), 2 the command line is wrong, 3 a Hugin tool is missing or\n"
           "failed, 130 stopped by Ctrl-C (SIGINT), 143 stopped by SIGTERM.\n";
}

} // namespace ExitCode
