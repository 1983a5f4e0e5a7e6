#include "meridane/scene/fields/NxDataSensor.h"

void NxDataSensor::notify()
{
    if (!isQueued()) // most changes come while the sensor is queued already
        schedule();
}
