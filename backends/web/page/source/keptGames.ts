// The games played here, as recordings in the browser's database: the last ones, and those in the score table. If the database
// is full or not allowed, only the recording is lost.
import { GameKind, type GameRecord, type ScoreRecord } from './records';

const database = 'prismfall';
const store = 'games';
const mostLast = 20;
const unfinishedKey = 'prismfall-unfinished'; // in the storage that can be written while a page is being closed

export interface KeptGame extends GameRecord {
    /** Milliseconds since 1970. */
    readonly when: number;
}

export interface StoredGame extends KeptGame {
    readonly id: number;
}

export class KeptGames {
    /** The last game played since the page was loaded. */
    last: KeptGame | undefined;
    /** Called when `last` has changed. */
    whenPlayed: () => void = () => undefined;
    /** Called when a game has been stored. */
    whenKept: () => void = () => undefined;

    private scores = new Set<string>();

    constructor() {
        void this.takeUnfinished();
    }

    /** Whether an Arcade game with that result was kept at the last look. */
    isKept(score: number, level: number): boolean {
        return this.scores.has(`${score} ${level}`);
    }

    async find(score: number, level: number): Promise<StoredGame | undefined> {
        return (await this.list()).find((game) => isResult(game, { score, level }));
    }

    /** Stores a game and drops others, all in one step. Resolves when that is done, or has failed. */
    async keep(game: GameRecord, table: readonly ScoreRecord[]): Promise<void> {
        this.last = { ...game, when: Date.now() };
        this.whenPlayed();
        const kept = this.last;
        dropUnfinished();
        await change((games) => {
            games.add(kept);
            const all = games.getAll() as IDBRequest<StoredGame[]>;
            all.onsuccess = () => {
                for (const { id } of superfluous(all.result, table)) games.delete(id);
            };
        }).catch(() => undefined);
        await this.list();
        this.whenKept();
    }

    /** Stores a game at once, in case the page is about to be closed. */
    keepUnfinished(game: GameRecord): void {
        try {
            localStorage.setItem(unfinishedKey, JSON.stringify({ ...game, when: Date.now() }));
        } catch {
            // Only the recording is lost.
        }
    }

    /** Moves a game that was left unfinished to the others. Returns whether there was one. */
    async takeUnfinished(): Promise<boolean> {
        const game = unfinished();
        if (game) await change((games) => games.add(game)).then(dropUnfinished, () => undefined);
        await this.list();
        this.whenKept();
        return game !== undefined;
    }

    /** The newest first; none if the browser has no database for the page. */
    async list(): Promise<StoredGame[]> {
        let all: IDBRequest<StoredGame[]> | undefined;
        await change((games) => (all = games.getAll()), 'readonly').catch(() => undefined);
        const games = all?.readyState === 'done' && !all.error ? all.result.reverse() : [];
        const scored = games.filter(({ kind }) => kind === GameKind.Arcade);
        this.scores = new Set(scored.map(({ score, level }) => `${score} ${level}`));
        return games;
    }

    async forget(id: number): Promise<void> {
        await change((games) => games.delete(id)).catch(() => undefined);
        await this.list();
    }
}

function unfinished(): KeptGame | undefined {
    try {
        return JSON.parse(localStorage.getItem(unfinishedKey) ?? '') as KeptGame;
    } catch {
        return undefined;
    }
}

function dropUnfinished(): void {
    try {
        localStorage.removeItem(unfinishedKey);
    } catch {
        // Nor was it stored.
    }
}

function isResult({ kind, score, level }: StoredGame, best: ScoreRecord): boolean {
    return kind === GameKind.Arcade && score === best.score && level === best.level;
}

/** The games to delete, given all of them, oldest first. Each row of the score table keeps one game. */
function superfluous(games: readonly StoredGame[], table: readonly ScoreRecord[]): StoredGame[] {
    const rows = [...table];
    return [...games].reverse().filter((game, age) => {
        const row = rows.findIndex((best) => isResult(game, best));
        if (row >= 0) rows.splice(row, 1);
        return row < 0 && age >= mostLast;
    });
}

/** Runs one transaction, and rejects if it was not carried out. */
async function change(act: (games: IDBObjectStore) => void, mode: IDBTransactionMode = 'readwrite'): Promise<void> {
    const opened = await open();
    try {
        await new Promise<void>((resolve, reject) => {
            const transaction = opened.transaction(store, mode);
            transaction.oncomplete = () => resolve();
            transaction.onabort = () => reject(transaction.error ?? new Error('aborted'));
            act(transaction.objectStore(store));
        });
    } finally {
        opened.close();
    }
}

function open(): Promise<IDBDatabase> {
    return new Promise((resolve, reject) => {
        const request = indexedDB.open(database, 1);
        request.onupgradeneeded = () => request.result.createObjectStore(store, { keyPath: 'id', autoIncrement: true });
        request.onsuccess = () => resolve(request.result);
        request.onerror = () => reject(request.error ?? new Error('refused'));
        request.onblocked = () => reject(new Error('blocked'));
    });
}
