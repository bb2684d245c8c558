/* The instrument's screen as a PNG file. */
#include <KVTD481X2C.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* Far more than a picture of the screen takes. */
enum { kMostBytes = 4 * 1024 * 1024 };

static const char* file_name = "screenshot.png";

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

static unsigned long BigEndian(const ViByte* bytes) {
  return (unsigned long)bytes[0] << 24 | (unsigned long)bytes[1] << 16 | (unsigned long)bytes[2] << 8 |
         (unsigned long)bytes[3];
}

/* A PNG file begins with eight bytes of its own and the header chunk: length, "IHDR", width, height. */
static int PrintSize(const ViByte* picture, ViInt32 size) {
  static const ViByte signature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};

  if (size < 24 || memcmp(picture, signature, sizeof signature) != 0 || memcmp(picture + 12, "IHDR", 4) != 0) {
    printf("What came is no PNG file\n");
    return 0;
  }
  printf("PNG, %lu x %lu\n", BigEndian(picture + 16), BigEndian(picture + 20));
  return 1;
}

static int Save(const ViByte* picture, ViInt32 size) {
  FILE* file = fopen(file_name, "wb");
  int good = file != NULL && fwrite(picture, 1, (size_t)size, file) == (size_t)size;

  if (file != NULL && fclose(file) != 0) good = 0;
  if (!good) perror(file_name);
  return good;
}

static int Show(ViSession vi) {
  ViByte* picture = malloc(kMostBytes);
  ViInt32 size = 0;
  const int good = picture != NULL &&
                   Worked("TakeScreenshotAndReturnData", vi,
                          KVTD481X2C_TakeScreenshotAndReturnData(vi, kMostBytes, picture, &size)) &&
                   PrintSize(picture, size) && Save(picture, size);

  if (good) printf("Saved as %s\n", file_name);
  free(picture);
  return good;
}

int main(int argc, char** argv) {
  ViSession vi = VI_NULL;
  int good;

  if (argc != 2 && argc != 3) {
    fprintf(stderr, "usage: %s RESOURCE [FILE], with a resource such as TCPIP0::192.168.0.20::5025::SOCKET\n", argv[0]);
    return EXIT_FAILURE;
  }
  if (argc == 3) file_name = argv[2];
  good = Worked("InitWithOptions", VI_NULL,
                KVTD481X2C_InitWithOptions(argv[1], VI_TRUE, VI_TRUE, "QueryInstrStatus=1", &vi));
  good = good && Show(vi);
  if (vi != VI_NULL && KVTD481X2C_close(vi) < VI_SUCCESS) good = 0;
  printf(good ? "Done\n" : "Failed\n");
  return good ? EXIT_SUCCESS : EXIT_FAILURE;
}
