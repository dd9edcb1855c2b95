// What script/build-web writes into the page, so that each version finds its own files.
export interface Build {
    /** The folder of this version's files, relative to the page. */
    readonly folder: string;
    /** The folder of the music, and the tracks in it. */
    readonly music: string;
    readonly tracks: readonly string[];
    /** The ids of the sounds, each a file in the folder `sounds` of this version. */
    readonly sounds: readonly number[];
    /** Everything the page needs to work offline, except the music. */
    readonly files: readonly string[];
}

declare const BUILD: Build;

export const build = BUILD;
