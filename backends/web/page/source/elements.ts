// The elements of a window as elements of the page: pictures are images, buttons are buttons, texts are texts. Each has
// its position in game pixels; the window that contains them is scaled as a whole.
import { fingersWords } from './fingers';
import { panelLeft } from './layout';
import type { Notices } from './notices';
import type { Pictures } from './pictures';
import { type ElementRecord, Kind, type SpotRecord } from './records';

const pixelsPerPoint = 96 / 72;

// Substitutes for the game's fonts where they are not installed.
const families: Readonly<Record<string, string>> = {
    'Times New Roman': '"Times New Roman", "Liberation Serif", Tinos, Times, serif',
    Arial: 'Arial, "Liberation Sans", Arimo, Helvetica, sans-serif',
    'MS Sans Serif': 'Arial, "Liberation Sans", Arimo, Helvetica, sans-serif',
    'Felix Titling': '"Felix Titling", "Liberation Serif", Georgia, serif',
};

class Shown {
    readonly node: HTMLElement;
    readonly image: HTMLImageElement | undefined;
    readonly input: HTMLInputElement | undefined;
    readonly words: HTMLElement | undefined;
    readonly unseen: HTMLElement | undefined;
    record: Partial<ElementRecord> = {};
    lastAnnounced = '';

    constructor(record: ElementRecord, place: number) {
        switch (record.kind) {
            case Kind.Picture:
            case Kind.PressPicture:
                this.node = make('div', 'picture');
                this.image = add(this.node, makeImage());
                for (const spot of record.spots) add(this.node, makeSpot(spot));
                break;
            case Kind.Button:
                this.node = make('button', 'picture');
                this.image = add(this.node, makeImage());
                break;
            case Kind.Label:
                this.node = make('div', 'label');
                this.unseen = add(this.node, make('span', 'unseen'));
                this.words = add(this.node, make('span'));
                break;
            case Kind.RadioButton:
            case Kind.CheckBox:
                this.node = make('label', 'choice');
                this.input = add(this.node, make('input'));
                this.input.type = record.kind === Kind.RadioButton ? 'radio' : 'checkbox';
                this.input.name = record.group;
                this.words = add(this.node, make('span'));
                break;
            case Kind.GroupFrame:
                this.node = make('div', 'frame');
                this.words = add(this.node, make('span'));
                break;
            case Kind.Outline:
                this.node = make('div', 'outline');
        }
        this.node.dataset['element'] = String(place);
    }
}

export class Elements {
    private readonly shown: Shown[] = [];
    private readonly groups = new Map<string, HTMLElement>();
    private readonly rows = new Map<number, HTMLElement>();
    private table: HTMLElement | undefined;

    constructor(
        private readonly root: HTMLElement,
        private readonly pictures: Pictures,
        private readonly notices: Notices,
    ) {}

    show(place: number, record: ElementRecord): void {
        const element = (this.shown[place] ??= this.make(place, record));
        const { node, image, input, words, unseen } = element;
        const last = element.record;
        element.record = record;
        const isNew = (...fields: (keyof ElementRecord)[]) => fields.some((field) => record[field] !== last[field]);
        if (isNew('visible')) node.hidden = !record.visible;
        if (isNew('left')) node.style.left = `${record.left}px`;
        if (isNew('top')) node.style.top = `${record.top}px`;
        if (isNew('left', 'width', 'wraps')) node.style.width = `${this.widthOf(record)}px`;
        if (isNew('height')) node.style.height = `${record.height}px`;
        if (isNew('colour')) node.style.color = record.colour;
        if (isNew('enabled') && node instanceof HTMLButtonElement) node.disabled = !record.enabled;
        if (isNew('left', 'panel')) node.classList.toggle('panel', record.panel < 0 && record.left >= panelLeft);
        if (image) {
            this.pictures.show(image, record.picture);
            if (isNew('accessibleName')) image.alt = record.accessibleName;
        }
        if (input) {
            // Browsers check a clicked box by themselves.
            input.checked = record.checked;
            input.disabled = !record.enabled;
        }
        if (unseen && isNew('accessibleName'))
            unseen.textContent = record.accessibleName && `${record.accessibleName} `;
        if (words && isNew('text', ...looksOfText)) setText(node, words, record);
        this.speak(element, record);
    }

    /** A text may extend beyond the window; text with several lines wraps where it can still be read. */
    private widthOf(record: ElementRecord): number {
        return record.wraps ? Math.min(record.width, this.root.offsetWidth - record.left) : record.width;
    }

    private make(place: number, record: ElementRecord): Shown {
        const element = new Shown(record, place);
        const parent = this.shown[record.panel]?.node ?? this.groupOf(record) ?? this.rowOf(record) ?? this.root;
        parent.append(element.node);
        if (record.row > 0) makeCell(element.node, record);
        return element;
    }

    /** The cells of a table are in rows, for screen readers. */
    private rowOf({ row }: ElementRecord): HTMLElement | undefined {
        if (row === 0) return undefined;
        let node = this.rows.get(row);
        if (!node) {
            this.table ??= this.makeTable();
            node = add(this.table, make('div'));
            node.setAttribute('role', 'row');
            this.rows.set(row, node);
        }
        return node;
    }

    /** Keeps a screen reader from reading a dialog with a table as one long sentence. */
    private makeTable(): HTMLElement {
        const table = add(this.root, make('div'));
        table.setAttribute('role', 'table');
        this.root.closest('dialog')?.removeAttribute('aria-describedby');
        return table;
    }

    /** The radio buttons of a group are in a node that tells a screen reader so. */
    private groupOf(record: ElementRecord): HTMLElement | undefined {
        if (record.kind !== Kind.RadioButton) return undefined;
        let node = this.groups.get(record.group);
        if (!node) {
            node = add(this.root, make('div'));
            node.setAttribute('role', 'radiogroup');
            node.setAttribute('aria-label', record.group);
            this.groups.set(record.group, node);
        }
        return node;
    }

    /** Numbers that change and pictures that explain something are announced when they appear. */
    private speak(element: Shown, record: ElementRecord): void {
        const tells = (record.kind === Kind.Label && record.accessibleName !== '') || record.kind === Kind.PressPicture;
        const forFingers = fingersWords(record.picture);
        const words = tells && record.visible ? (forFingers ?? `${record.accessibleName} ${record.text}`) : '';
        if (words === element.lastAnnounced) return;
        element.lastAnnounced = words;
        // What stands below the picture is read out as well.
        if (forFingers !== undefined) this.notices.show('tutorial', words);
        else if (words !== '') this.notices.speak(words);
    }
}

const looksOfText = ['ground', 'family', 'points', 'bold', 'italic', 'wraps', 'fitHeight'] as const;

function setText(node: HTMLElement, words: HTMLElement, record: ElementRecord): void {
    words.textContent = record.text;
    // The background of highlighted texts extends only as far as their text, that of a frame as far as its lines.
    (record.kind === Kind.Label ? node : words).style.backgroundColor = record.ground;
    if (record.kind === Kind.GroupFrame) node.style.setProperty('--ground', record.ground);
    node.style.fontFamily = families[record.family] ?? record.family;
    node.style.fontWeight = record.bold ? 'bold' : 'normal';
    node.style.fontStyle = record.italic ? 'italic' : 'normal';
    node.style.whiteSpace = record.wraps ? 'pre-wrap' : 'pre';
    let size = record.points * pixelsPerPoint;
    node.style.fontSize = `${size}px`;
    // The browser's font may be larger than the one the text was laid out for.
    while (record.fitHeight > 0 && words.offsetHeight > record.fitHeight && size > 6) {
        size = Math.ceil(size) - 1;
        node.style.fontSize = `${size}px`;
    }
}

function makeCell(node: HTMLElement, { row, column }: ElementRecord): void {
    node.setAttribute('role', row === 1 ? 'columnheader' : column === 1 ? 'rowheader' : 'cell');
    node.setAttribute('aria-colindex', String(column));
}

/** For keys; pointers press what is below. */
export function makeSpot(spot: SpotRecord): HTMLButtonElement {
    const node = make('button', 'spot');
    for (const side of ['left', 'top', 'width', 'height'] as const) node.style[side] = `${spot[side]}px`;
    node.setAttribute('aria-label', spot.accessibleName);
    node.dataset['button'] = String(spot.button);
    return node;
}

function makeImage(): HTMLImageElement {
    const image = make('img');
    image.draggable = false;
    image.decoding = 'sync';
    return image;
}

export function make<Tag extends keyof HTMLElementTagNameMap>(tag: Tag, className = ''): HTMLElementTagNameMap[Tag] {
    const node = document.createElement(tag);
    node.className = className;
    return node;
}

export function add<Node extends HTMLElement>(parent: HTMLElement, node: Node): Node {
    parent.append(node);
    return node;
}
