// What one analysis costs beside one normal form of the same text, and what a normal form costs beside a
// plain loop that copies and upper-cases it. Compare the times of one run; the complexity is fitted too.

#include <benchmark/benchmark.h>

#include <filesystem>

#include "ads/analyser.h"
#include "base/fonctionnel.h"
#include "base/line_file.h"

namespace talvor {
namespace {

// The sample advertisements one behind the other, over and over, to at least that many characters.
Text SampleText(std::size_t size) {
  static const Text samples = [] {
    Text all;
    for (const auto& entry : std::filesystem::directory_iterator(TALVOR_TEST_DATA "/annonces"))
      if (entry.path().extension() == ".txt") all += WithCrLf(*FromUtf8(*ReadBytes(entry.path())));
    return all;
  }();
  Text text;
  while (text.size() < size) text += samples;
  text.resize(size);
  return text;
}

// The same without any line end: one endless line.
Text OneLine(std::size_t size) {
  Text text = SampleText(size);
  for (char16_t& c : text)
    if (c == u'\r' || c == u'\n') c = u' ';
  return text + u"\r\n.";
}

void CopyAndUpperCase(benchmark::State& state) {
  const Text text = SampleText(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    Text copy;
    copy.resize(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) copy[i] = ToUpper(text[i]);
    benchmark::DoNotOptimize(copy.data());
  }
  state.SetComplexityN(state.range(0));
}

void NormalForm(benchmark::State& state) {
  const Text text = SampleText(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(Normaliser(text));
  state.SetComplexityN(state.range(0));
}

template <Text (*Sample)(std::size_t)>
void Analysis(benchmark::State& state) {
  const Text text = Sample(static_cast<std::size_t>(state.range(0)));
  // Without end markers and gender marks no cut shortens the work.
  const Text whole = ReplaceAll(text, u"H/F", u"h/f");
  const AdContext context{.TermFin = u"1Fin introuvable\r\n1Autre fin\r\n1Et une\r\n1Encore une\r\n",
                          .today = *DayOf({2026, 1, 1})};
  for (auto _ : state) {
    Text texte = whole;
    AdFields record;
    AnalyserAnnonce(texte, record, context);
    benchmark::DoNotOptimize(record);
  }
  state.SetComplexityN(state.range(0));
}

constexpr int Shortest = 2 << 10;
constexpr int Longest = 10 << 20;

BENCHMARK(CopyAndUpperCase)->RangeMultiplier(8)->Range(Shortest, Longest)->Complexity(benchmark::oN);
BENCHMARK(NormalForm)->RangeMultiplier(8)->Range(Shortest, Longest)->Complexity(benchmark::oN);
BENCHMARK(Analysis<SampleText>)->RangeMultiplier(8)->Range(Shortest, Longest)->Complexity(benchmark::oN);
BENCHMARK(Analysis<OneLine>)->RangeMultiplier(8)->Range(Shortest, Longest)->Complexity(benchmark::oN);

}  // namespace
}  // namespace talvor
