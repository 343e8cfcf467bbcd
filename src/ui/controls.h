#pragma once

// Every kind of control that a screen is made of.

#include "ui/choice_controls.h"
#include "ui/grid.h"
#include "ui/list_controls.h"
#include "ui/text_controls.h"
#include "ui/value_controls.h"
