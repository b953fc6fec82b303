#pragma once

#include "shell/command.h"

namespace calvix::host
{

/// All commands, in the order in which help lists them.
CommandSet AllCommands();

/// Those of one family.
void AddDoctorCommand(CommandSet& commands);
void AddAdapterCommands(CommandSet& commands);
void AddScanCommands(CommandSet& commands);
void AddProfileCommands(CommandSet& commands);
void AddConnectionCommands(CommandSet& commands);
void AddLiveCommands(CommandSet& commands);
void AddRadioCommands(CommandSet& commands);
void AddSettingsCommands(CommandSet& commands);
void AddPowerCommands(CommandSet& commands);
void AddProcessCommands(CommandSet& commands);
void AddListCommands(CommandSet& commands);
void AddMatchCommands(CommandSet& commands);
void AddBestCommand(CommandSet& commands);
void AddExplainCommand(CommandSet& commands);
void AddCaptureCommand(CommandSet& commands);
void AddReportCommand(CommandSet& commands);
void AddHelpCommands(CommandSet& commands);

} // namespace calvix::host
