/* A list of frequencies and levels under a name, stepped through by software triggers. */
#include <KVTD481X2C.h>
#include <stdio.h>
#include <stdlib.h>

enum { kPoints = 4, kMostQueries = 100 };

/* A session's first name is given the instrument's first list. */
enum { kList = 1 };

/* Whether a call worked. If not, the driver's words about it are printed; with a status of VISA's it may have none. */
static int Worked(const char* call, ViSession vi, ViStatus status) {
  ViStatus code = VI_SUCCESS;
  ViChar text[1024] = "";

  if (status >= VI_SUCCESS) return 1;
  KVTD481X2C_GetError(vi, &code, (ViInt32)sizeof text, text);
  if (code != status) text[0] = '\0';
  printf("%s failed with 0x%08X: %s\n", call, (unsigned)status, text[0] != '\0' ? text : "(no text recorded)");
  return 0;
}

static int CreateList(ViSession vi) {
  const ViReal64 frequencies[kPoints] = {1e9, 1.5e9, 2.25e9, 4e9};
  const ViReal64 levels[kPoints] = {-10.0, -12.5, -15.0, -20.0};
  ViReal64 frequency = 0.0;
  ViReal64 level = 0.0;
  ViInt32 frequencies_held = 0;
  ViInt32 levels_held = 0;

  if (!Worked("CreateFrequencyPowerList", vi,
              KVTD481X2C_CreateFrequencyPowerList(vi, "Channels", kPoints, frequencies, levels)) ||
      !Worked("GetNumberOfListFrequencyPoints", vi, KVTD481X2C_GetNumberOfListFrequencyPoints(vi, &frequencies_held)) ||
      !Worked("GetNumberOfListPowerPoints", vi, KVTD481X2C_GetNumberOfListPowerPoints(vi, &levels_held)) ||
      !Worked("GetListFrequency", vi, KVTD481X2C_GetListFrequency(vi, kList, &frequency)) ||
      !Worked("GetListPowerLevel", vi, KVTD481X2C_GetListPowerLevel(vi, kList, &level)))
    return 0;
  printf("List %d holds %d frequencies and %d levels, the first %.3f MHz and %.2f dBm\n", kList, (int)frequencies_held,
         (int)levels_held, frequency / 1e6, level);
  return 1;
}

/* The instrument answers with the whole list; the calls above keep its first value. Direct I/O has them all. */
static int PrintPoints(ViSession vi) {
  static const ViByte query[] = ":LIST1:FREQ?\n";
  ViByte answer[1024];
  ViInt64 count = 0;

  if (!Worked("viWrite", vi, KVTD481X2C_viWrite(vi, (ViInt64)sizeof query - 1, query, &count)) ||
      !Worked("viRead", vi, KVTD481X2C_viRead(vi, (ViInt64)sizeof answer, answer, &count)))
    return 0;
  printf("Its frequencies: %.*s", (int)count, (const char*)answer);
  return 1;
}

/* Selecting a list moves the frequency; that the level follows the same list is a setting of its own. Each software
   trigger then moves on by one point. */
static int Select(ViSession vi) {
  return Worked("SelectList", vi, KVTD481X2C_SelectList(vi, "Channels")) &&
         Worked("SetPowerMode", vi, KVTD481X2C_SetPowerMode(vi, KVTD481X2C_VAL_POWER_MODE_LIST1)) &&
         Worked("ConfigureListDwell", vi, KVTD481X2C_ConfigureListDwell(vi, 0.01)) &&
         Worked("stepping by triggers", vi,
                KVTD481X2C_SetAttributeViBoolean(vi, "", KVTD481X2C_ATTR_LIST_SINGLE_STEP_ENABLED, VI_TRUE)) &&
         Worked("SetInitiateContinuousEnabled", vi, KVTD481X2C_SetInitiateContinuousEnabled(vi, VI_FALSE)) &&
         Worked("ArmTrigger", vi, KVTD481X2C_ArmTrigger(vi));
}

/* Asks until the list stands where it should; a query takes its time on the wire, which is all the waiting there is. */
static int WaitForIndex(ViSession vi, ViInt32 wanted) {
  ViInt32 index = -1;
  int query;

  for (query = 0; query < kMostQueries && index != wanted; ++query)
    if (!Worked("GetListIndex", vi, KVTD481X2C_GetListIndex(vi, kList, &index))) return 0;
  printf("At point %d\n", (int)index);
  return index == wanted;
}

static int Step(ViSession vi) {
  ViInt32 point;

  if (!WaitForIndex(vi, 0)) return 0;
  for (point = 1; point < kPoints; ++point)
    if (!Worked("SendSoftwareTrigger", vi, KVTD481X2C_SendSoftwareTrigger(vi)) || !WaitForIndex(vi, point)) return 0;
  return 1;
}

static int Show(ViSession vi) {
  return CreateList(vi) && PrintPoints(vi) && Select(vi) && Step(vi) && Worked("Abort", vi, KVTD481X2C_Abort(vi)) &&
         Worked("ending the list", vi,
                KVTD481X2C_ConfigureSweep(vi, KVTD481X2C_VAL_SWEEP_MODE_NONE,
                                          KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_IMMEDIATE));
}

int main(int argc, char** argv) {
  ViSession vi = VI_NULL;
  int good;

  if (argc != 2) {
    fprintf(stderr, "usage: %s RESOURCE, such as TCPIP0::192.168.0.20::5025::SOCKET\n", argv[0]);
    return EXIT_FAILURE;
  }
  good = Worked("InitWithOptions", VI_NULL,
                KVTD481X2C_InitWithOptions(argv[1], VI_TRUE, VI_TRUE, "QueryInstrStatus=1", &vi));
  good = good && Show(vi);
  if (vi != VI_NULL && KVTD481X2C_close(vi) < VI_SUCCESS) good = 0;
  printf(good ? "Done\n" : "Failed\n");
  return good ? EXIT_SUCCESS : EXIT_FAILURE;
}
