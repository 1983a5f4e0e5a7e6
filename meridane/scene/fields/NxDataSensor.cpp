#include "meridane/scene/fields/NxDataSensor.h"

void NxDataSensor::notify()
{
    if (!isQueued()) // by far the most changes come while the first one still waits
        schedule();
}
