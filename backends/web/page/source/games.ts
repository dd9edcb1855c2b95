// The dialog with the games played here, to watch, share, save and delete; the button that shares the last game; files that are
// opened or dropped; and links to games.
import { add, make } from './elements';
import type { Keys } from './keys';
import type { KeptGame, KeptGames, StoredGame } from './keptGames';
import { isLink, packed, recordingIn, Refusal, unpacked } from './links';
import type { Notices } from './notices';
import { canShare, saveAsFile, share, titleOf } from './sharing';
import type { Waiting } from './waiting';
import { clock, noticeTime, type Watching } from './watching';

export interface Parts {
    readonly games: KeptGames;
    readonly watching: Watching;
    readonly notices: Notices;
    readonly waiting: Waiting;
    readonly keys: Keys;
    readonly list: HTMLButtonElement;
    readonly last: HTMLButtonElement;
}

export class Games {
    private readonly dialog = make('dialog', 'message games');
    private readonly rows = make('ul');
    private readonly status = make('p');
    private readonly file = make('input');
    private hasEnded = false;

    constructor(private readonly parts: Parts) {
        const { games, watching, list, last } = parts;
        this.makeDialog();
        list.addEventListener('click', () => void this.open());
        addEventListener('keydown', (event) => {
            if (event.key !== 'F2' || document.querySelector('dialog[open]')) return;
            event.preventDefault();
            void this.open();
        });
        games.whenPlayed = () => (last.hidden = false);
        games.whenKept = () => {
            if (this.dialog.open) void this.fill();
        };
        last.addEventListener('click', () => {
            if (games.last) void this.share(games.last);
        });
        watching.whenLeft = dropLink;
        addEventListener('hashchange', () => void this.watchLink());
        addEventListener('dragover', (event) => {
            if (event.dataTransfer?.types.includes('Files')) event.preventDefault();
        });
        addEventListener('drop', (event) => {
            const file = event.dataTransfer?.files[0];
            if (!file) return;
            event.preventDefault();
            void this.watch(recordingIn(file));
        });
    }

    /** Watches the game in the page's address, if there is one. */
    async watchLink(): Promise<void> {
        if (isLink(location.hash)) await this.watch(unpacked(location.hash));
    }

    private async watch(recording: Promise<string>): Promise<void> {
        try {
            const text = await recording;
            if (this.hasEnded) await startWith(text);
            else this.parts.watching.begin(text);
            this.dialog.close();
        } catch (error) {
            if (!(error instanceof Refusal)) throw error;
            this.tell(error.message);
            dropLink();
        }
    }

    /** The program has ended. To watch a game, the page has to be loaded again. */
    noteEnd(): void {
        this.hasEnded = true;
    }

    /** Shown in the dialog too, which hides the page's line. */
    private tell(sentence: string): void {
        this.status.textContent = sentence;
        this.parts.notices.show('games', sentence, noticeTime);
    }

    private async share(game: KeptGame): Promise<void> {
        this.tell(await share(game));
    }

    private async open(): Promise<void> {
        this.parts.waiting.cover(this.parts.keys.areForField);
        this.status.textContent = '';
        await this.fill();
        document.body.append(this.dialog);
        this.dialog.showModal();
        this.dialog.focus();
    }

    private async fill(): Promise<void> {
        const games = await this.parts.games.list();
        this.rows.replaceChildren(...games.map((game) => this.rowOf(game)));
        if (games.length === 0) add(this.rows, make('li')).textContent = 'No games are kept in this browser yet.';
    }

    private makeDialog(): void {
        const { dialog, file } = this;
        // The dialog itself has the focus at first, so that its title is read out.
        dialog.tabIndex = -1;
        const header = add(dialog, make('header'));
        const title = add(header, make('h2'));
        title.textContent = 'Games';
        title.id = 'games-title';
        dialog.setAttribute('aria-labelledby', title.id);
        addButton(header, 'Open a file', () => file.click());
        addButton(header, 'Close', () => dialog.close());
        header.append(this.status);
        this.status.setAttribute('role', 'status');
        dialog.append(this.rows);
        file.type = 'file';
        file.addEventListener('change', () => {
            const chosen = file.files?.[0];
            if (chosen) void this.watch(recordingIn(chosen));
            file.value = '';
        });
        dialog.addEventListener('close', () => {
            if (dialog.open) return; // it has been opened again since
            dialog.remove();
            this.parts.waiting.cover(false);
        });
    }

    private rowOf(game: StoredGame): HTMLElement {
        const row = make('li');
        const words = add(row, make('p'));
        words.id = `game${game.id}`;
        add(words, make('strong')).textContent = titleOf(game);
        add(words, make('span')).textContent = ` ${clock(game.length)}, ${dayAndTime(game.when)}`;
        const buttons: [string, () => void][] = [
            ['Watch', () => void this.watch(Promise.resolve(game.recording))],
            [canShare() ? 'Share' : 'Copy link', () => void this.share(game)],
            ['Save as file', () => saveAsFile(game)],
            ['Delete', () => void this.forget(game, row)],
        ];
        for (const [name, act] of buttons) addButton(row, name, act).setAttribute('aria-describedby', words.id);
        return row;
    }

    private async forget(game: StoredGame, row: HTMLElement): Promise<void> {
        await this.parts.games.forget(game.id);
        const next = row.nextElementSibling ?? row.previousElementSibling ?? this.dialog;
        await this.fill();
        const described = next.querySelector('p')?.id ?? '';
        const again = [...this.rows.querySelectorAll('button')].filter((button) => button.textContent === 'Delete');
        (again.find((button) => button.getAttribute('aria-describedby') === described) ?? this.dialog).focus();
        this.tell(`Deleted: ${titleOf(game)}.`);
    }
}

function addButton(parent: HTMLElement, words: string, act: () => void): HTMLButtonElement {
    const button = add(parent, make('button', 'plain'));
    button.type = 'button';
    button.textContent = words;
    button.addEventListener('click', act);
    return button;
}

async function startWith(recording: string): Promise<void> {
    history.replaceState(history.state, '', location.pathname + location.search + (await packed(recording)));
    location.reload();
}

/** Afterwards, reloading the page starts it as always. */
function dropLink(): void {
    if (isLink(location.hash)) history.replaceState(history.state, '', location.pathname + location.search);
}

function dayAndTime(when: number): string {
    return new Date(when).toLocaleString(undefined, { dateStyle: 'medium', timeStyle: 'short' });
}
