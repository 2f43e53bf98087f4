// The table of all commands, their help texts and their handlers.
#pragma once

// Builds the tree Cmds from the table. Ends the process with status 1 if memory runs out.
void CreateCommands();
