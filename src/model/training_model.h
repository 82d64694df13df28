// The chief header of the model: what a training is made of. The run plan, the state that the subsystems
// share beside the controls, and the words that a sequence is told in. The floors above the model include
// this; the record files, the grid's rows and the conversions have headers of their own.
#pragma once

#include "model/run_plan.h"
#include "model/shared_state.h"
#include "model/vocabulary.h"
