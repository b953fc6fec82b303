#include "commands/commands.h"

#include "import/import_command.h"

namespace calvix::host
{

CommandSet AllCommands()
{
    CommandSet commands;
    AddDoctorCommand(commands);
    AddAdapterCommands(commands);
    AddScanCommands(commands);
    AddProfileCommands(commands);
    AddConnectionCommands(commands);
    AddLiveCommands(commands);
    AddRadioCommands(commands);
    AddSettingsCommands(commands);
    AddPowerCommands(commands);
    AddProcessCommands(commands);
    AddListCommands(commands);
    AddMatchCommands(commands);
    AddBestCommand(commands);
    AddExplainCommand(commands);
    AddCaptureCommand(commands);
    AddImportCommand(commands);
    AddReportCommand(commands);
    AddHelpCommands(commands);
    return commands;
}

} // namespace calvix::host
