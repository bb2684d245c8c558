"""The C and CMake that pages show: the C compiles against the public headers."""

import re
import unittest

import project

BLOCK = re.compile(r"^```(c|cpp)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
FOLDERS = [word for folder in [*project.HEADER_FOLDERS, project.SOURCE / "platform/ivi/include"]
           for word in ("-I", str(folder))]
C = ["-std=c99", "-Wall", "-Wextra", "-Werror", *FOLDERS]
CPP = ["-std=c++20", "-Wall", "-Wextra", "-Werror", *FOLDERS]

# Statements without a function around them are read as the inside of one, with a session at hand.
AROUND = """#include <KVTD481X2C.h>
#include <stdio.h>
#include <visa.h>
ViStatus Snippet(ViSession vi);
ViStatus Snippet(ViSession vi) {
  ViStatus status = VI_SUCCESS;
%s
  return status + (ViStatus)(vi & 0);
}
"""


class Snippets(unittest.TestCase):
    def test_every_block_of_c_in_a_page_compiles(self):
        seen = 0
        for path in project.files():
            if path.suffix != ".md":
                continue
            for language, code in BLOCK.findall(project.text(path)):
                seen += 1
                whole = code if "#include" in code else AROUND % code
                with self.subTest(page=str(path), code=code):
                    if language == "c":
                        status, said = project.compile_only(project.fact("c_compiler"), C, whole, "c")
                    else:
                        status, said = project.compile_only("c++", CPP, whole, "c++")
                    self.assertEqual((0, ""), (status, said))
        self.assertGreaterEqual(seen, 2)


if __name__ == "__main__":
    unittest.main()
