import Tessivo

// Another title for an event.
TitleFrame {
    cardParts: ""
}
