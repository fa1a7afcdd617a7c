#include "widgets/TelaFilha.h"
