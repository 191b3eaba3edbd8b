// The decoder's process: started by the program, decodes what the toolkit does not read.

#include "adapters/confine/serve.h"
#include "adapters/decoder/decode.h"
#include "adapters/decoder/ghostscript.h"

int main(int argc, char** argv) {
    confine::RunService(argc, argv,
                        {{sandbox::Role::Raster, decoder::WarmUp, decoder::Decode, {}, {}},
                         {sandbox::Role::Eps, decoder::WarmUpGhostscript, decoder::Decode,
                          [](sandbox::Kind, auto file) { return decoder::MeasurePostScript(file); },
                          decoder::InterpreterLives}});
}
