#pragma once

namespace tessivo::swipe {

/// A light tap that the user feels. Main thread; failures are ignored.
class ImpactGenerator {
public:
    virtual ~ImpactGenerator() = default;

    virtual void prepare() = 0;
    virtual void impactOccurred() = 0;
};

/// The feedback of one row; silent on a machine without a generator.
class SwipeFeedback final {
public:
    explicit SwipeFeedback(ImpactGenerator* generator) : generator_(generator) {}

    void prepare() const {
        if (generator_)
            generator_->prepare();
    }
    void impactOccurred() const {
        if (generator_)
            generator_->impactOccurred();
    }

private:
    ImpactGenerator* generator_;
};

} // namespace tessivo::swipe
