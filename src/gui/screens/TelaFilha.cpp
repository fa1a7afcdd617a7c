#include "gui/screens/TelaFilha.h"
