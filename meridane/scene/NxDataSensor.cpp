#include "meridane/scene/NxDataSensor.h"

void NxDataSensor::notify()
{
    schedule();
}
