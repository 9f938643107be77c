// ZUIInstances: the host's record of the UI support library's shared state.
// The library only passes its pointer on to ZUI::init.
#pragma once

/// The UI library's shared settings. Its first field says whether file
/// dialogs use the system's native dialog.
struct ZUISettings
{
    bool useSystemFileDialog = true;
};

struct ZUIInstances
{
    /// The host's shared settings record; owned by the host.
    ZUISettings* settings = nullptr;
};
