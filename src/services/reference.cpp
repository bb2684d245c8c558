// Calibrations of the frequency reference: started and aborted here, run by the instrument.

#include "KVTD481X2C.h"
#include "Tvr.h"
#include "operations.h"

using namespace tvr::operation;

ViStatus KVTD481X2C_StartReferenceCalibration(ViSession Vi) { return tvr::RunAction(kStartReferenceCalibration, Vi); }

ViStatus KVTD481X2C_AbortReferenceCalibration(ViSession Vi) { return tvr::RunAction(kAbortReferenceCalibration, Vi); }

ViStatus KVTD481X2C_StartLowFrequencyReferenceCalibration(ViSession Vi) {
  return tvr::RunAction(kStartLowFrequencyReferenceCalibration, Vi);
}

ViStatus KVTD481X2C_AbortLowFrequencyReferenceCalibration(ViSession Vi) {
  return tvr::RunAction(kAbortLowFrequencyReferenceCalibration, Vi);
}
