// Effect chains: order, bounds, removal records, clones; effects' times and XML.
#include <ZelmarMediaLib/effects/CompositeEffect.h>
#include <ZelmarMediaLib/effects/Effect.h>
#include <ZelmarMediaLib/effects/EffectTimeConverter.h>
#include <ZelmarMediaLib/effects/ParametricEffectableUtil.h>
#include <ZelmarMediaLib/effects/VectorEffectable.h>
#include <ZelmarMediaLib/exceptions/IndexException.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/parameters/InterpolatingParam.h>
#include <ZelmarMediaLib/project/Project.h>

#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <vector>

namespace ZelmarMediaLib {
namespace {

// The library has no concrete effect of its own here: one keyframed "gain" is enough to
// show the parameters block and the independence of clones.
class GainEffect : public Effect {
public:
    GainEffect(std::string const& name, weak_ptr<ThreadSafe const> project)
        : Effect(name, project), gain_(boost::make_shared<InterpolatingParam<double> >(project, "gain")) {
        gain_->addKeyFrame(0, 0.5);
    }
    GainEffect(GainEffect const& other) : XMLIdentified(other), Effect(other), gain_(other.gain_->clone()) {}

    GainEffect* clone() const override { return new GainEffect(*this); }
    int numParameters() const override { return 1; }
    std::list<ParameterInterface const*> parameters() const override { return {gain_.get()}; }
    ParameterVector* parameterVector() const override {
        ParameterVector* list = new ParameterVector(projectMutex());
        list->push_back(gain_);
        return list;
    }

    shared_ptr<InterpolatingParam<double> > gain() const { return gain_; }

private:
    shared_ptr<InterpolatingParam<double> > gain_;
};

class GroupEffect : public CompositeEffect {
public:
    using CompositeEffect::CompositeEffect;

    GroupEffect* clone() const override { return new GroupEffect(*this); }
    double toParameterTime(double time) const override { return time; }
    double fromParameterTime(double time) const override { return time; }
    std::list<ParameterInterface const*> parameters() const override { return {}; }
    ParameterVector* parameterVector() const override { return new ParameterVector(projectMutex()); }
};

// Stands in for a media that starts at 100 on its track.
class StartsAt100 : public EffectTimeConverter {
public:
    long long globalTimeToEffectTime(long long time) const override { return time - 100; }
};

using test::xml;

class EffectChainTest : public ::testing::Test {
protected:
    shared_ptr<Effect> effect(std::string const& name) { return boost::make_shared<GainEffect>(name, project); }

    // The chain holds exactly these objects, in this order.
    void expectChain(std::vector<shared_ptr<Effect> > const& expected) {
        ASSERT_EQ(static_cast<int>(expected.size()), chain.numEffects());
        for (int i = 0; i < chain.numEffects(); ++i)
            EXPECT_EQ(expected[static_cast<std::size_t>(i)], chain.effectAtIndex(i)) << "at " << i;
    }

    template <class E>
    std::string messageOf(std::function<void()> const& refused) {
        try {
            refused();
        } catch (E const& e) {
            return e.what();
        }
        ADD_FAILURE() << "nothing was raised";
        return std::string();
    }

    shared_ptr<Project> project = Project::create(30, 1);
    VectorEffectable chain;
    shared_ptr<Effect> a = effect("a");
    shared_ptr<Effect> b = effect("b");
    shared_ptr<Effect> c = effect("c");
};

TEST_F(EffectChainTest, AddAppendsInsertGoesBeforeTheIndexAndSwapExchanges) {
    EXPECT_EQ(0, chain.addEffect(a));
    chain.swapEffectOrder(0, 0);
    EXPECT_EQ(1, chain.addEffect(c));
    chain.insertEffect(b, 1);
    expectChain({a, b, c});

    shared_ptr<Effect> const d = effect("d");
    chain.insertEffect(d, 3);
    chain.swapEffectOrder(3, 0);
    expectChain({d, b, c, a});
}

TEST_F(EffectChainTest, IndexOutOfRangeRaisesWithThatIndexAndLeavesTheChainUnchanged) {
    chain.addEffect(a);
    chain.addEffect(b);
    VectorEffectable const& constChain = chain;
    EXPECT_EQ("Invalid index:3", messageOf<IndexException>([&] { chain.insertEffect(c, 3); }));
    EXPECT_EQ("Invalid index:-1", messageOf<IndexException>([&] { chain.insertEffect(c, -1); }));
    EXPECT_EQ("Invalid index:2", messageOf<IndexException>([&] { chain.swapEffectOrder(0, 2); }));
    // The first index is tested first.
    EXPECT_EQ("Invalid index:5", messageOf<IndexException>([&] { chain.swapEffectOrder(5, -1); }));
    EXPECT_EQ("Invalid index:2", messageOf<IndexException>([&] { chain.removeEffect(2); }));
    EXPECT_EQ("Invalid index:-1", messageOf<IndexException>([&] { chain.removeEffect(-1); }));
    EXPECT_EQ("Invalid index:2", messageOf<IndexException>([&] { chain.effectAtIndex(2); }));
    EXPECT_EQ("Invalid index:-1", messageOf<IndexException>([&] { constChain.effectAtIndex(-1); }));
    expectChain({a, b});
}

TEST_F(EffectChainTest, RefusedEffectsRaiseTheirTextsAndLeaveTheChainUnchanged) {
    typedef ValueException<shared_ptr<Effect const> > EffectException;
    chain.addEffect(a);
    EXPECT_EQ("trying to remove a null effect",
              messageOf<EffectException>([&] { chain.removeEffect(shared_ptr<Effect const>()); }));
    try {
        chain.removeEffect(shared_ptr<Effect const>(b));
        ADD_FAILURE() << "an effect of no chain was removed";
    } catch (EffectException const& e) {
        EXPECT_EQ("effect to remove isn't found", std::string(e.what()));
        EXPECT_EQ(b, e.value());
    }
    // A null effect would only fail later, when the chain is written or cloned.
    EXPECT_EQ("trying to add a null effect", messageOf<EffectException>([&] { chain.addEffect(nullptr); }));
    EXPECT_EQ("trying to insert a null effect", messageOf<EffectException>([&] { chain.insertEffect(nullptr, 0); }));
    expectChain({a});
}

// By index, the record is filled after the erase: it names the effect that moved into the slot.
TEST_F(EffectChainTest, RemovalByPointerRecordsTheEffectAndByIndexItsSuccessor) {
    chain.addEffect(a);
    chain.addEffect(b);
    chain.addEffect(c);
    auto expectRemoval = [](EffectRemoval const& removal, shared_ptr<Effect> const& effect, int index) {
        EXPECT_EQ(effect, removal.effect);
        EXPECT_EQ(index, removal.index);
    };
    expectRemoval(chain.removeEffect(shared_ptr<Effect const>(b)), b, 1);
    expectChain({a, c});
    expectRemoval(chain.removeEffect(0), c, 0);
    expectChain({c});
    expectRemoval(chain.removeEffect(0), nullptr, 0);
    expectChain({});
}

TEST_F(EffectChainTest, ClonedChainHoldsNewEffectsWithoutConverterAndIndependentKeyframes) {
    StartsAt100 converter;
    a->setEffectTimeConverter(&converter);
    chain.addEffect(a);
    chain.addEffect(b);
    std::unique_ptr<VectorEffectable> const copy(chain.clone());

    ASSERT_EQ(2, copy->numEffects());
    shared_ptr<GainEffect> const copiedA = dynamic_pointer_cast<GainEffect>(copy->effectAtIndex(0));
    ASSERT_TRUE(copiedA);
    EXPECT_NE(a, copiedA);
    EXPECT_NE(b, copy->effectAtIndex(1));
    EXPECT_EQ("b", copy->effectAtIndex(1)->name());
    EXPECT_EQ(150, copiedA->fromGlobalToParametricTime(150));

    copiedA->gain()->changeKeyFrame(0, 2.0);
    EXPECT_EQ(0.5, dynamic_pointer_cast<GainEffect>(a)->gain()->valueAtTime(0));
    copy->removeEffect(0);
    expectChain({a, b});
}

TEST_F(EffectChainTest, EffectTimeFollowsItsConverterWhileOneIsSet) {
    StartsAt100 converter;
    EXPECT_EQ(250, a->fromGlobalToParametricTime(250));
    a->setEffectTimeConverter(&converter);
    EXPECT_EQ(150, a->fromGlobalToParametricTime(250));
    EXPECT_EQ(250.5, a->toParameterTime(250.5));
    EXPECT_EQ(250.5, a->fromParameterTime(250.5));
    a->setEffectTimeConverter(nullptr);
    EXPECT_EQ(250, a->fromGlobalToParametricTime(250));
}

// The effects' parameters are kept out of their owner's list on purpose.
TEST_F(EffectChainTest, EffectablesParametersAddNothingToTheOwnersList) {
    chain.addEffect(a);
    std::unique_ptr<ParameterVector> const list(new ParameterVector(project));
    ParametricEffectableUtil::addEffectablesParameters(&chain, list.get());
    EXPECT_TRUE(list->empty());
}

TEST_F(EffectChainTest, EffectXmlListsItsParametersWithoutNames) {
    GainEffect const& gain = dynamic_cast<GainEffect const&>(*a);
    std::string const id = std::to_string(gain.xmlIdent());
    std::string const gainId = std::to_string(gain.gain()->xmlIdent());
    std::string const laneId = std::to_string(gain.gain()->interpolaterParam()->xmlIdent());
    std::string const expected = "<Effect id=\"" + id + "\"  >\n"
                                 " <Parameters>\n"
                                 "  <InterpolatingParam id=\"" + gainId + "\"  >\n"
                                 "   <Parameters>\n"
                                 "    <Parameter id=\"" + laneId + "\"  name=\"interpolater\">\n"
                                 "     <Keyframes>\n"
                                 "      <Keyframe time=\"0\" value=\"linr\"/>\n"
                                 "     </Keyframes>\n"
                                 "    </Parameter>\n"
                                 "   </Parameters>\n"
                                 "   <Keyframes>\n"
                                 "    <Keyframe time=\"0\" value=\"0.5\"/>\n"
                                 "   </Keyframes>\n"
                                 "  </InterpolatingParam>\n"
                                 " </Parameters>\n"
                                 "</Effect>\n";
    EXPECT_EQ(expected, xml(gain));
    EXPECT_TRUE(test::isWellFormedXml(xml(gain)));
}

TEST_F(EffectChainTest, CompositeEffectXmlIsItsNameAlone) {
    GroupEffect group("Glow", project);
    EXPECT_EQ("<CompositeEffect id=\"" + std::to_string(group.xmlIdent()) + "\" name=\"Glow\" >\n</CompositeEffect>\n",
              xml(group));
}

}  // namespace
}  // namespace ZelmarMediaLib
