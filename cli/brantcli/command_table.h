// The command language.
#pragma once

// Builds the tree Cmds from the table of commands. Ends the process with status 1 when there is no memory for
// it.
void CreateCommands();
