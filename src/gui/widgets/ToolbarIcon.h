#pragma once
// The icons of the main window's toolbar, one for each command. They come from the desktop's icon theme when
// it has all of them, so that the set stays coherent, and otherwise from our own drawings (drawn here, at any
// size). Either way the disabled state is drawn grey and faded, plain to see beside an enabled button.
//     botao->setIcon(toolbarIcon(ToolbarIcon::Save));
#include <QIcon>
#include <QString>

enum class ToolbarIcon { NewMonthly, NewIndividual, Open, Save, Delete, Close, Copy };

QIcon toolbarIcon(ToolbarIcon which);
// The desktop theme's name for each icon.
QString toolbarIconThemeName(ToolbarIcon which);
// True when the theme in use has every icon of the set.
bool toolbarThemeIsComplete();
