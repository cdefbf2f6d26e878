import Tessivo

// Another background for an event.
BackgroundFrame {
    cardParts: ""
}
