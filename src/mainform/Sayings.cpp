#include "mainform/Sayings.h"

namespace vorlex {

const std::array<std::string_view, 20>& sayings() {
  static constexpr std::array<std::string_view, 20> kSayings = {
      "Adopt the pace of nature: her secret is patience. (R. W. Emerson)",
      "Nature does nothing in vain. (Aristotle)",
      "In all things of nature there is something of the marvelous. (Aristotle)",
      "Chance favours only the prepared mind. (L. Pasteur)",
      "The important thing is not to stop questioning. (A. Einstein)",
      "Nothing in biology makes sense except in the light of evolution. (T. Dobzhansky)",
      "Study nature, not books. (L. Agassiz)",
      "Go to the ant, thou sluggard; consider her ways, and be wise. (Proverbs 6:6)",
      "What is not good for the swarm is not good for the bee. (Marcus Aurelius)",
      "An ounce of prevention is worth a pound of cure. (B. Franklin)",
      "He that can have patience can have what he will. (B. Franklin)",
      "Rome was not built in a day. (proverb)",
      "Slow and steady wins the race. (Aesop)",
      "Little by little, one goes far. (proverb)",
      "Science is organized knowledge. (H. Spencer)",
      "Measure twice, cut once. (proverb)",
      "The patient in spirit is better than the proud in spirit. (Ecclesiastes 7:8)",
      "Nature never did betray the heart that loved her. (W. Wordsworth)",
      "The beginning of wisdom is to call things by their right names. (proverb)",
      "One swallow does not make a summer. (Aristotle)",
  };
  return kSayings;
}

} // namespace vorlex
