// Writing XML: a large document streamed element by element, and escaping a string.
#include <ZelmarMediaLib/datatypes/Range.h>
#include <ZelmarMediaLib/datatypes/XMLRepresentation.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>

#include <benchmark/benchmark.h>

#include <sstream>
#include <vector>

namespace {

namespace zml = ZelmarMediaLib;

// An element with the kinds of attribute a media writes: numbers, a range, a string.
class Sample : public zml::XMLable {
public:
    explicit Sample(int index) : index_(index) {}
    void xmlName(Options& options) const override { *options.stream << "Sample"; }
    void xmlAttributes(Options& options) const override {
        *options.stream << "index=\"" << zml::xml_representation(index_) << "\" scalar=\""
                        << zml::xml_representation(index_ * 0.37) << "\" range=\""
                        << zml::xml_representation(zml::Range<long long>(index_ * 30LL, 90)) << "\" title=\""
                        << zml::xml_representation(title_) << '"';
    }
    void xmlBody(Options&, int) const override {}

private:
    int index_;
    std::string title_ = "Clip & co";
};

class Document : public zml::XMLable {
public:
    explicit Document(int count) {
        samples_.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i)
            samples_.emplace_back(i);
    }
    void xmlName(Options& options) const override { *options.stream << "Document"; }
    void xmlAttributes(Options&) const override {}
    void xmlBody(Options& options, int indent) const override {
        for (Sample const& sample : samples_)
            sample.toXML(options, indent, "name=\"sample\"");
    }

private:
    std::vector<Sample> samples_;
};

void BM_WriteDocumentOf100000Elements(benchmark::State& state) {
    Document const document(100000);
    std::size_t bytes = 0;
    for (auto _ : state) {
        std::ostringstream out;
        document.toXML(out);
        bytes = out.str().size();
        benchmark::DoNotOptimize(bytes);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
}
BENCHMARK(BM_WriteDocumentOf100000Elements)->Unit(benchmark::kMillisecond);

void BM_EscapeOneKilobyteString(benchmark::State& state) {
    std::string const pattern = "a&b\"c'd<e>f\ng\rh ";
    std::string text;
    while (text.size() < 1024)
        text += pattern;
    text.resize(1024);
    for (auto _ : state)
        benchmark::DoNotOptimize(zml::xml_representation(text));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}
BENCHMARK(BM_EscapeOneKilobyteString);

}  // namespace
