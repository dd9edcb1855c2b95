// What script/build-web writes into the page, so that each version finds its own files.
export interface Build {
    /** The folder of this version's files, relative to the page. */
    readonly folder: string;
    /** The folder of the music, and the tracks in it. */
    readonly music: string;
    readonly tracks: readonly string[];
    /** The ids of the sounds, each a file in the folder `sounds` of this version. */
    readonly sounds: readonly number[];
    /** Everything that the page needs without a network, except the music. */
    readonly files: readonly string[];
}

declare const BUILD: Build;

export const build = BUILD;
