// The decoder's process: started by the program, decodes what the toolkit does not read.

#include "adapters/confine/serve.h"
#include "adapters/decoder/decode.h"
#include "adapters/decoder/ghostscript.h"

int main(int argc, char** argv) {
    confine::RunService(argc, argv,
                        {{door::Role::Raster, decoder::WarmUp, decoder::Decode, {}, {}},
                         {door::Role::Eps, decoder::WarmUpGhostscript, decoder::Decode,
                          [](door::Kind, auto file) { return decoder::MeasurePostScript(file); },
                          decoder::InterpreterLives}});
}
