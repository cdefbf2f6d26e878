import Tessivo

// Another day or time, another repeat or unit for an event.
DateAndTimeFrame {
    cardParts: ""
    countName: "eventTimeLabel"
}
