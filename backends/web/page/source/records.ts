// The records of backends/web/Imports.h, read from the program's memory field by field.

/** Reads fields of four bytes, one after the other. */
class FieldReader {
    private readonly view: DataView;

    constructor(
        memory: WebAssembly.Memory,
        private at: number,
    ) {
        this.view = new DataView(memory.buffer);
    }

    /** The address after the last field read. */
    end(): number {
        return this.at;
    }

    whole(): number {
        return this.view.getInt32(this.next(), true);
    }

    /** Unsigned. */
    bits(): number {
        return this.view.getUint32(this.next(), true);
    }

    flag(): boolean {
        return this.whole() !== 0;
    }

    real(): number {
        return this.view.getFloat32(this.next(), true);
    }

    text(): string {
        const address = this.bits();
        return decodeText(this.view.buffer as ArrayBuffer, address, this.bits());
    }

    private next(): number {
        this.at += 4;
        return this.at - 4;
    }
}

const decoder = new TextDecoder();

export function decodeText(memory: ArrayBuffer, address: number, length: number): string {
    return length === 0 ? '' : decoder.decode(new Uint8Array(memory, address, length));
}

export interface WindowRecord {
    readonly isDialog: boolean;
    readonly left: number;
    readonly top: number;
    readonly width: number;
    readonly height: number;
    readonly title: string;
    readonly background: string;
}

export function readWindow(memory: WebAssembly.Memory, address: number): WindowRecord {
    return windowFrom(new FieldReader(memory, address));
}

function windowFrom(field: FieldReader): WindowRecord {
    return {
        isDialog: field.flag(),
        left: field.whole(),
        top: field.whole(),
        width: field.whole(),
        height: field.whole(),
        title: field.text(),
        background: field.text(),
    };
}

/** As in platform/Element.h. */
export enum Kind {
    Picture,
    Button,
    PressPicture,
    Label,
    RadioButton,
    CheckBox,
    GroupFrame,
    Outline,
}

export interface SpotRecord {
    readonly left: number;
    readonly top: number;
    readonly width: number;
    readonly height: number;
    readonly button: number;
    readonly accessibleName: string;
}

export interface ElementRecord {
    readonly kind: Kind;
    readonly panel: number;
    readonly visible: boolean;
    readonly enabled: boolean;
    readonly checked: boolean;
    readonly left: number;
    readonly top: number;
    readonly width: number;
    readonly height: number;
    readonly colour: string;
    readonly ground: string;
    readonly points: number;
    readonly bold: boolean;
    readonly italic: boolean;
    readonly wraps: boolean;
    readonly fitHeight: number;
    readonly row: number;
    readonly column: number;
    readonly family: string;
    readonly picture: string;
    readonly accessibleName: string;
    readonly text: string;
    readonly group: string;
    readonly spots: readonly SpotRecord[];
}

const noGround = 0xffffffff;

/** From 0xBBGGRR to the notation of style sheets. */
function cssColour(colour: number): string {
    if (colour === noGround) return 'transparent';
    return `rgb(${colour & 0xff} ${(colour >> 8) & 0xff} ${(colour >> 16) & 0xff})`;
}

function readSpot(field: FieldReader): SpotRecord {
    return {
        left: field.real(),
        top: field.real(),
        width: field.real(),
        height: field.real(),
        button: field.whole(),
        accessibleName: field.text(),
    };
}

export function readSpots(memory: WebAssembly.Memory, address: number, count: number): SpotRecord[] {
    const field = new FieldReader(memory, address);
    return Array.from({ length: count }, () => readSpot(field));
}

export function readElement(memory: WebAssembly.Memory, address: number): ElementRecord {
    return elementFrom(new FieldReader(memory, address));
}

function elementFrom(field: FieldReader): ElementRecord {
    return {
        kind: field.whole(),
        panel: field.whole(),
        visible: field.flag(),
        enabled: field.flag(),
        checked: field.flag(),
        left: field.real(),
        top: field.real(),
        width: field.whole(),
        height: field.whole(),
        colour: cssColour(field.bits()),
        ground: cssColour(field.bits()),
        points: field.real(),
        bold: field.flag(),
        italic: field.flag(),
        wraps: field.flag(),
        fitHeight: field.whole(),
        row: field.whole(),
        column: field.whole(),
        family: field.text(),
        picture: field.text(),
        accessibleName: field.text(),
        text: field.text(),
        group: field.text(),
        spots: [readSpot(field), readSpot(field)].filter(({ width }) => width > 0),
    };
}

/** As in game/GameLog.h. */
export enum GameKind {
    Arcade,
    Puzzle,
    Solution,
}

export enum GameEnding {
    Lost,
    Solved,
    Left,
}

/** A game that is over. */
export interface GameRecord {
    readonly kind: GameKind;
    readonly ending: GameEnding;
    readonly puzzle: number;
    readonly score: number;
    readonly level: number;
    /** Milliseconds. */
    readonly length: number;
    readonly recording: string;
}

export function readGame(memory: WebAssembly.Memory, address: number): GameRecord {
    return gameFrom(new FieldReader(memory, address));
}

function gameFrom(field: FieldReader): GameRecord {
    return {
        kind: field.whole(),
        ending: field.whole(),
        puzzle: field.whole(),
        score: field.whole(),
        level: field.whole(),
        length: field.whole(),
        recording: field.text(),
    };
}

export type ScoreRecord = Pick<GameRecord, 'score' | 'level'>;

export function readScores(memory: WebAssembly.Memory, address: number, count: number): ScoreRecord[] {
    const field = new FieldReader(memory, address);
    return Array.from({ length: count }, () => ({ score: field.whole(), level: field.whole() }));
}

/** A game that is being watched. Times are milliseconds of that game. */
export interface WatchRecord {
    readonly isWatching: boolean;
    readonly isPaused: boolean;
    readonly isOver: boolean;
    readonly differs: boolean;
    readonly pace: number;
    readonly position: number;
    readonly length: number;
}

export function readWatching(memory: WebAssembly.Memory, address: number): WatchRecord {
    return watchFrom(new FieldReader(memory, address));
}

function watchFrom(field: FieldReader): WatchRecord {
    return {
        isWatching: field.flag(),
        isPaused: field.flag(),
        isOver: field.flag(),
        differs: field.flag(),
        pace: field.whole(),
        position: field.whole(),
        length: field.whole(),
    };
}

export enum WatchCommand {
    Begin,
    Pause,
    GoOn,
    Pace,
    GoTo,
    PlayOn,
    Leave,
}

export enum EventKind {
    Move,
    Press,
    Release,
    Activate,
    Key,
    Close,
    Watch,
}

export interface PageEvent {
    readonly kind: EventKind;
    readonly window: number;
    readonly number: number;
    readonly x: number;
    readonly y: number;
    readonly time: number;
}

export function writeEvent(memory: WebAssembly.Memory, address: number, event: PageEvent): void {
    const view = new DataView(memory.buffer, address);
    view.setFloat64(0, event.time, true);
    view.setInt32(8, event.kind, true);
    view.setInt32(12, event.window, true);
    view.setInt32(16, event.number, true);
    view.setFloat32(20, event.x, true);
    view.setFloat32(24, event.y, true);
}

const eventSize = 28;

/** What the program and the page must agree on, in the order of RecordSizes. */
function ownSizes(): Record<string, number> {
    const size = (read: (field: FieldReader) => unknown) => {
        const field = new FieldReader(new WebAssembly.Memory({ initial: 1 }), 0);
        read(field);
        return field.end();
    };
    const count = (kinds: object) => Object.keys(kinds).length / 2;
    return {
        window: size(windowFrom),
        element: size(elementFrom),
        game: size(gameFrom),
        watch: size(watchFrom),
        event: eventSize,
        'kinds of elements': count(Kind),
        'kinds of events': count(EventKind),
        'commands for watching': count(WatchCommand),
    };
}

/** Throws if the program was built for another version of the page. */
export function checkRecords(memory: WebAssembly.Memory, address: number): void {
    const field = new FieldReader(memory, address);
    for (const [name, size] of Object.entries(ownSizes())) {
        const built = field.whole();
        if (built !== size) throw new Error(`The program does not fit this page (${name}: ${built} for ${size}).`);
    }
}
