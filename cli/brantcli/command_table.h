// The command language, as one table: every command with its help text and its handler.
#pragma once

// Builds the tree Cmds from the table. Ends the process with status 1 when there is no memory for it.
void CreateCommands();
