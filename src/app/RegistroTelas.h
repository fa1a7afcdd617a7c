#pragma once
// The program's screens, registered with the main window by number or name before it starts. Only the program
// knows every screen; the shell opens them through the registry without including them.
void RegistraTelas();
